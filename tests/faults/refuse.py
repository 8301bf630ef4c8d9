#!/usr/bin/env python3
"""refuse.py [--whole] COMMAND... [--only OPERATION]: refuses every operation its memory, one allocation
after the other, by the program of that command, which is started again behind an allocation that made
it crash. Prints what does not hold. With --whole, each refusal is also the first thing that a process
does.
"""
import subprocess
import sys

# Faults of the system's libraries, which nothing here can mend.
KNOWN = {
    "pelmora_set_number_format: crash in libstdc++.so.6",  # frees what it has not allocated
    "pelmora_xml_element_with_attribute: crash in libxml2.so.2",  # xmlXPathEval alone does both
    "pelmora_xml_element_with_attribute: leaks",
}

MOST_FINDINGS = 4  # that are shown of one operation in one mode
SKIPPED = -1

arguments = sys.argv[1:]
only = None
if "--only" in arguments:
    at = arguments.index("--only")
    only = arguments[at + 1]
    del arguments[at:at + 2]
whole = "--whole" in arguments
command = [word for word in arguments if word != "--whole"]
refusals, findings, shown, known, operations = 0, 0, {}, {}, []


def note(operation, nth, mode, finding):
    """Whether it is one that counts."""
    global findings
    finding = f"{operation}: {finding}"
    if finding in KNOWN:
        known[finding] = known.get(finding, 0) + 1
        return False
    findings += 1
    shown[operation + mode] = shown.get(operation + mode, 0) + 1
    if shown[operation + mode] <= MOST_FINDINGS:
        print(f"{finding}, without allocation {nth}{mode}", flush=True)
    return True


def run(*options):
    """The lines of one run, in fields."""
    ran = subprocess.run([*command, *map(str, options)], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                         text=True, errors="replace")
    return [line.split("\t") for line in ran.stdout.splitlines() if line.count("\t") == 2]


def warm(kind, mode):
    global refusals
    start, crashes = [only, 1] if only else [], 0
    while True:
        lines = run(kind, *start)
        if not lines:
            sys.exit("refuse.py: the program does not run")
        *ended, (operation, nth, finding) = lines
        for name, number, found in ended:
            if only in (None, name):
                if name not in operations:
                    operations.append(name)
                if found:
                    note(name, number, mode, found)
        if operation == "end":
            refusals += int(nth)
            return
        if only not in (None, operation):
            return
        # The line of a crash has no end.
        crashes = crashes + 1 if start and start[0] == operation else 1
        refusals += len(lines)
        known_ones = not note(operation, nth, mode, "crash" + finding)
        start = [operation, int(nth) + 1 if known_ones or crashes < MOST_FINDINGS else SKIPPED]


def cold(kind, mode, operation):
    global refusals
    expected, nth, found, refused = None, 0, 0, "1"
    while found < MOST_FINDINGS and (nth < 2 or refused == "1"):
        lines = run(kind, operation, nth, "cold")
        finding = lines[0][2] if lines else ""
        if len(lines) < 2:
            finding, refused = "crash" + finding, "1"
        else:
            refused = lines[1][1]
            expected = expected or lines[1][2]
            if not finding and lines[1][2] != expected:
                finding = "another result"
        refusals += int(refused) if nth else 0
        if finding:
            found += note(operation, nth, mode, finding)
        nth += 1


for kind, mode in ("once", ""), ("onward", " and all after it"):
    warm(kind, mode)
    if whole:
        for operation in [only] if only else operations:
            cold(kind, mode + " at first use", operation)
print(f"{len(operations)} operations, {refusals} allocations refused, {findings} findings")
for finding, count in known.items():
    print(f"not ours, {count} times: {finding}")
sys.exit(1 if findings else 0)
