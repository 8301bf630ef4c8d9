"""snippets.py FOLDER DOCUMENT...: makes sources of the ```cpp, ```c and ```csharp blocks in documents.

A block with a main function is a program; the document says what it prints in a ```text block after
"prints". Any other block becomes the body of a function, which is only compiled. Blocks of
```cpp windows are for Windows alone. A ```text block after <!-- FILE --> shows the beginning of that file of
the repository, which is an example's output as its test compares it.

FOLDER/snippets.cpp has the whole of C++ and runs the program that its argument names, also the ones of
C, which have a source each. FOLDER/snippets.cs has those of C# and runs all of them.
FOLDER/snippets.cmake lists the sources of C, and calls pelmora_printed(NAME EXPRESSION) for each
program. FOLDER/snippets.expected is what those of C# print.
"""
import pathlib
import re
import sys

BLOCK = re.compile(r"^```(cpp|c|csharp)( windows)?\n(.*?)^```$(?:\n\nprints\n\n```text\n(.*?)^```$)?",
                   re.M | re.S)
OUTPUT = re.compile(r"^<!-- (\S+) -->\n```text\n(.*?)^```$", re.M | re.S)
CPP_HEAD = """#include <pelmora/pelmora.h>
#include <iostream>
#include <string_view>
#if defined(__GNUC__) // A fragment ends before it uses what it made.
#pragma GCC diagnostic ignored "-Wunused-variable"
#pragma GCC diagnostic ignored "-Wunused-but-set-variable"
#endif
"""
CPP_MAIN = """
int main(int, char** arguments)
{{
    const std::string_view name = arguments[1];
{}    return 1;
}}
"""


def write(file, content):
    if not file.exists() or file.read_text(encoding="utf-8") != content:
        file.write_text(content, encoding="utf-8")


def split_off(code, pattern):
    """The lines of this pattern, and the code with empty lines in their place."""
    return re.findall(pattern, code, re.M), re.sub(pattern, "", code, flags=re.M)


class Sources:
    def __init__(self, folder):
        self.folder = folder
        self.includes, self.cpp, self.dispatch = [], "", ""
        self.cs, self.cs_calls, self.cs_printed = "", "", ""
        self.cmake = ""

    def add_program(self, name, call, printed, windows):
        run = f'    if (name == "{name}")\n        return {call};\n'
        self.dispatch += f"#if defined(_WIN32)\n{run}#endif\n" if windows else run
        expression = re.sub(r"([][().^$*+?|\\])", r"\\\1", printed).replace("\n", "\r?\n")
        self.cmake += f"pelmora_printed([[{name}{windows}]] [=[^{expression}$]=])\n"

    def add_cpp(self, name, where, code, printed, windows):
        found, code = split_off(code, r"^#include .*$")
        if "int main()" in code:
            code = code.rstrip()[:-1] + "return 0; }\n" # which main alone may leave out
            code = f"namespace {name}\n{{\nint main();\n{where}{code}}}\n"
            self.add_program(name, f"{name}::main()", printed, windows)
        else:
            code = f"void {name}();\nvoid {name}()\n{{\n{where}{code}}}\n"
        text = "\n".join(found) + "\n" + code
        self.cpp += f"#if defined(_WIN32)\n{text}#endif\n" if windows else text

    def add_c(self, name, where, code, printed, windows):
        found, code = split_off(code, r"^#include .*$")
        text = "#include <pelmora/c/pelmora.h>\n" + "\n".join(found)
        if "int main(void)" in code:
            text += f"\nint {name}(void);\n#define main {name}\n{where}{code}"
            self.cpp += f'extern "C" int {name}();\n'
            self.add_program(name, f"{name}()", printed, windows)
        else:
            text += f"\nvoid {name}(void);\nvoid {name}(void)\n{{\n{where}{code}}}\n"
        if windows:
            text = f"#if defined(_WIN32)\n{text}#else\ntypedef int {name}; // no source is empty\n#endif\n"
        write(self.folder / f"{name}.c", text)
        self.cmake += f"list(APPEND c_snippets {name}.c)\n"

    def add_csharp(self, name, where, code, printed, _):
        usings, code = split_off(code, r"^using (?:static )?[\w.]+;$")
        usings = "\n".join(dict.fromkeys(["using System;"] + usings))
        if "static void Main()" not in code:
            code = f"class Program {{ internal static void Main() {{\n{where}{code}\n}} }}\n"
        else:
            code = where + code.replace("static void Main()", "internal static void Main()")
            self.cs_calls += f"        {name}.Program.Main();\n"
            self.cs_printed += printed
        self.cs += f"namespace {name}\n{{\n{usings}\n{code}}}\n"


def check_output(document, text):
    """Ends with a message when the document shows an output that is not the example's."""
    root = pathlib.Path(__file__).resolve().parent.parent
    for file, shown in OUTPUT.findall(text):
        if not (root / file).read_text(encoding="utf-8").startswith(shown):
            sys.exit(f"{document}: the output after {file} is not what stands there")


folder = pathlib.Path(sys.argv[1])
sources = Sources(folder)
for document in map(pathlib.Path, sys.argv[2:]):
    text = document.read_text(encoding="utf-8")
    check_output(document, text)
    path = document.resolve().relative_to(pathlib.Path(__file__).resolve().parent.parent)
    stem = re.sub(r"\W", "_", "_".join(path.with_suffix("").parts[-2:])).lower()
    for number, block in enumerate(BLOCK.finditer(text), 1):
        language, windows, code, printed = block.groups("")
        line = text.count("\n", 0, block.start()) + 2
        where = f'#line {line} "{document.resolve().as_posix()}"\n'
        add = {"cpp": sources.add_cpp, "c": sources.add_c, "csharp": sources.add_csharp}[language]
        add(f"{stem}_{number}", where, code, printed, windows)
write(folder / "snippets.cpp", CPP_HEAD + sources.cpp + CPP_MAIN.format(sources.dispatch))
write(folder / "snippets.cs", sources.cs + "class Snippets\n{\n    static void Main()\n    {\n"
      + sources.cs_calls + "    }\n}\n")
write(folder / "snippets.expected", sources.cs_printed)
write(folder / "snippets.cmake", sources.cmake)
