#!/usr/bin/env python3
"""checkHardening.py OBJDUMP FILE...: looks into built libraries and programs for what
cmake/hardening.cmake asks for. Prints what is missing; silent when nothing is.
"""
import re
import subprocess
import sys

objdump, *files = sys.argv[1:]

# What a file has: the option of objdump, and a pattern of its output.
EVERY_ELF = {
    "relocations that are read-only": ("-p", r"RELRO off"),
    "binding at the start": ("-p", r"FLAGS +0x[0-9a-f]*[89a-f]$"),
    "a stack without code": ("-p", r"STACK off.*\n.*flags rw-$"),
}
ELF_PROGRAM = {"a position of any kind": ("-p", r"FLAGS_1 +0x0*[89a-f][0-9a-f]{6}$")}
ELF_LIBRARY = {"stack protector": ("-T", r"\b__stack_chk_fail\b")}
EVERY_PE = {
    "layout in the whole address space": ("-p", r"\bHIGH_ENTROPY_VA$"),
    "random layout": ("-p", r"\bDYNAMIC_BASE$"),
    "relocations for it": ("-h", r"\.reloc\b"),
    "data that is not executed": ("-p", r"\bNX_COMPAT$"),
}
PE_LIBRARY = {"stack protector": ("-t", r"\b__stack_chk_fail\b")}

missing = []
for file in files:
    is_windows = file.endswith((".dll", ".exe"))
    is_library = re.search(r"\.dll$|\.so\b", file)
    if is_windows:
        wanted = EVERY_PE | (PE_LIBRARY if is_library else {})
    else:
        wanted = EVERY_ELF | (ELF_LIBRARY if is_library else ELF_PROGRAM)
    for what, (option, pattern) in wanted.items():
        dump = subprocess.run([objdump, option, file], check=True, capture_output=True, text=True)
        if not re.search(pattern, dump.stdout, re.M):
            missing.append(f"{file}: no {what}")
print("\n".join(missing))
sys.exit(bool(missing))
