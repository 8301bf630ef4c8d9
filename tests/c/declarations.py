"""What the header of the C interface declares, for the scripts that write calls of all of it."""
import re


def declared_functions(header, exports, is_windows):
    """Name and parameters, each with type and name, of every exported function that takes something
    and does not destroy it; those for Windows alone only when asked for."""
    marks = ([], ["windows"]) if is_windows else ([],)
    with open(exports) as file:
        lines = [line.split() for line in file if line.startswith("pelmora_")]
    exported = {name for name, *mark in lines if mark in marks}
    with open(header) as file:
        text = re.sub(r"/\*.*?\*/", "", file.read(), flags=re.S)
    functions = []
    for function, listed in re.findall(r"PELMORA_CALL\s+(pelmora_\w+)\(([^()]*)\);", text):
        if function not in exported or function.endswith("_destroy") or listed == "void":
            continue
        parameters = []
        for parameter in re.sub(r"\s+", " ", listed).split(","):
            kind, stars, name = re.fullmatch(r" ?(.*?) ?(\**) ?(\w+)", parameter).groups()
            parameters.append((kind + stars, name))
        functions.append((function, parameters))
    return functions
