#!/usr/bin/env python3
"""checkExports.py LIBRARY OBJDUMP HEADER EXPORTS SOURCE...: compares what a built library of the C
interface exports and imports, what the header declares and what the tests call with the list of
exports. Prints what differs; silent when nothing does.
"""
import re
import subprocess
import sys

library, objdump, header, exports, *sources = sys.argv[1:]
is_windows = library.endswith(".dll")
SYSTEM = r"(?i)(advapi32|gdi32|kernel32|msvcrt|ole32|oleaut32|user32|winhttp)\.dll" if is_windows \
    else r"lib(xml2|m|c|gcc_s|asan|ubsan|tsan)\.so\.\d+|ld-linux.*"

differences = []


def compare(what, names, expected):
    differences.extend(f"{what}: {name} is not expected" for name in sorted(names - expected))
    differences.extend(f"{what}: {name} is missing" for name in sorted(expected - names))


def dump(*options):
    return subprocess.run([objdump, *options, library], check=True, capture_output=True, text=True).stdout


listed = [line.split() for line in open(exports) if line.startswith("pelmora_")]
portable = {words[0] for words in listed if len(words) == 1}
windows = {words[0] for words in listed if words[1:] == ["windows"]}
expected = portable | windows if is_windows else portable

text = re.sub(r"/\*.*?\*/", "", open(header).read(), flags=re.S)
anywhere, _, windows_only = text.rpartition("#if defined(_WIN32)")
declaration = r"PELMORA_CALL\s+(pelmora_\w+)\("
compare("header", set(re.findall(declaration, anywhere)), portable)
compare("header, Windows", windows - set(re.findall(declaration, windows_only)), set())

called = set(re.findall(r"\bpelmora_\w+\b", "".join(open(source).read() for source in sources)))
differences.extend(f"tests: {name} is not called" for name in sorted(expected - called))

if is_windows:
    private = dump("--private-headers")
    compare("exports", set(re.findall(r"^\s*\[ *\d+\] (?:\+base\S+ +\S+ )?(\w+)$", private, re.M)),
            expected)
    imported = re.findall(r"DLL Name: (\S+)", private)
else:
    symbols = re.findall(r"^[0-9a-f]+ (?!.*\*UND\*).*\s(\S+)$", dump("--dynamic-syms"), re.M)
    compare("exports", set(symbols), expected)
    imported = re.findall(r"NEEDED +(\S+)", dump("--private-headers"))
differences.extend(f"{name} is not the system's" for name in imported
                   if not re.fullmatch(SYSTEM, name))
print("\n".join(differences))
sys.exit(1 if differences else 0)
