"""snippets.py FOLDER DOCUMENT...: makes C++ sources of the ```cpp blocks in the documents.

FOLDER/snippets.cmake then calls pelmora_program(NAME SOURCE OUTPUT) for each block with a main(),
whose document says what it prints in a ```text block after "prints", and pelmora_fragment(NAME
SOURCE) for each other one, which becomes the body of a function.
"""
import pathlib
import re
import sys

BLOCK = re.compile(r"^```cpp\n(.*?)^```$(?:\n\nprints\n\n```text\n(.*?)\n```$)?", re.M | re.S)


def write(file, content):
    if not file.exists() or file.read_text(encoding="utf-8") != content:
        file.write_text(content, encoding="utf-8")


folder, calls = pathlib.Path(sys.argv[1]), ""
for document in map(pathlib.Path, sys.argv[2:]):
    blocks = BLOCK.findall(document.read_text(encoding="utf-8"))
    for number, (code, printed) in enumerate(blocks, 1):
        name = f"{document.stem.lower()}_{number}"
        source = folder / f"{name}.cpp"
        if "int main(" in code:
            calls += f"pelmora_program({name} [[{source}]] [[{printed}]])\n"
        else:
            code = f"#include <pelmora/pelmora.h>\n\nvoid {name}();\nvoid {name}()\n{{\n{code}}}\n"
            calls += f"pelmora_fragment({name} [[{source}]])\n"
        write(source, code)
write(folder / "snippets.cmake", calls)
