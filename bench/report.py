#!/usr/bin/env python3
"""report.py RESULTS... : prints the table of the benchmarks' results, writes each program's part of
it into docs/performance.md, and ends with status 1 when a goal is missed by more than 15 %.

RESULTS are files of Google Benchmark's JSON, NAME.json for the program NAME; the names of the
benchmarks are explained in goals.txt. With --windows first: the results of the Windows build, which
have neither peers nor goals.
"""
import datetime
import json
import pathlib
import platform
import subprocess
import sys

BENCH = pathlib.Path(__file__).parent
DOCUMENT = BENCH.parent / "docs" / "performance.md"
TOLERANCE = 1.15
NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


class Row:
    def __init__(self, line):
        self.program, self.work, self.peer, goals, self.what = map(str.strip, line.split("|"))
        self.goals = [goal.strip() for goal in goals.split(",") if goal.strip() != "report"]


def read_rows():
    lines = (BENCH / "goals.txt").read_text().splitlines()
    return [Row(line) for line in lines if line and not line.startswith("#")]


def read_medians(paths):
    """By the benchmark's name: the counters' medians, and the CPU time's as "ns"."""
    medians = {}
    for path in paths:
        for run in json.loads(pathlib.Path(path).read_text())["benchmarks"]:
            if run.get("aggregate_name") == "median":
                counters = {key: x for key, x in run.items() if isinstance(x, float)}
                # What measures by itself, as of another process, says so in its name.
                name = run["run_name"].removesuffix("/manual_time")
                time = run["cpu_time" if name == run["run_name"] else "real_time"]
                counters["ns"] = time * NANOSECONDS[run["time_unit"]]
                medians[name] = counters
    return medians


def figure(nanoseconds):
    for unit, limit in (("ns", 1e4), ("µs", 1e7)):
        if nanoseconds < limit:
            break
    else:
        unit = "ms"
    number = nanoseconds / {"ns": 1, "µs": 1e3, "ms": 1e6}[unit]
    return f"{number:.{1 if number < 100 else 0}f} {unit}"


def measured(goal, ours, peer):
    """The goal's number and what was measured for it."""
    number, _, counter = goal.partition(" ")
    if counter:
        return float(number), ours[counter]
    return float(number), ours["ns"] / peer["ns"]


def cells(row, medians):
    ours = medians[f"{row.work}/ours"]
    peer = medians.get(f"{row.work}/{row.peer}")
    missed = False
    for goal in row.goals:
        wanted, got = measured(goal, ours, peer)
        missed = missed or got > wanted * TOLERANCE
    ratio = [f"{ours['ns'] / peer['ns']:.2g}" if ours["ns"] < 0.1 * peer["ns"] else
             f"{ours['ns'] / peer['ns']:.2f}"] if peer else []
    ratio = " ".join(ratio + ["**missed**"] * missed)
    counters = {key: x for key, x in ours.items() if key not in ("ns", "real_time", "cpu_time")}
    allocations = f"{counters['allocations']:.0f}" if "allocations" in counters else ""
    own = [figure(ours["ns"])] + [f"{counters[key]:.1f} {key}" for key in counters
                                  if key != "allocations"]
    return [row.work, ", ".join(own), f"{row.peer} {figure(peer['ns'])}" if peer else "", ratio,
            ", ".join(row.goals) or "-", allocations, row.what], missed


def machine(compiler):
    processor = next((line.split(":")[1].strip() for line in open("/proc/cpuinfo")
                      if line.startswith("model name")), platform.machine())
    version = subprocess.run([compiler, "-dumpfullversion"], capture_output=True, text=True,
                             check=True).stdout.strip()
    system = platform.freedesktop_os_release()["PRETTY_NAME"]
    return f"{processor}, {system}, {compiler} {version}, {datetime.date.today()}"


def print_table(head, rows):
    widths = [max(len(row[i]) for row in [head, *rows]) for i in range(len(head) - 1)]
    for row in [head, *rows]:
        print("  ".join(cell.ljust(width) for cell, width in zip(row, widths)))


def write_table(name, head, rows, where):
    """Replaces what stands between the two marks of this name in the document."""
    text = DOCUMENT.read_text()
    before, begin, rest = text.partition(f"<!-- {name} -->\n")
    _, end, after = rest.partition("<!-- end -->")
    if not begin or not end:
        sys.exit(f"{DOCUMENT} has no marks for the table '{name}'")
    lines = [head, ["---"] * len(head), *rows]
    table = "\n".join("| " + " | ".join(line) + " |" for line in lines)
    DOCUMENT.write_text(f"{before}{begin}{where}.\n\n{table}\n{end}{after}")


def report_native(paths):
    head = ["work", "ours", "peer", "ratio", "goal", "allocations", "what is measured"]
    medians = read_medians(paths)
    where = machine("g++")
    any_missed = False
    all_rows = []
    for program in [pathlib.Path(path).stem for path in paths]:
        rows = []
        for row in read_rows():
            if row.program == program:
                line, missed = cells(row, medians)
                any_missed = any_missed or missed
                rows.append(line)
        write_table(program, head, rows, where)
        all_rows += rows
    print_table(head, all_rows)
    return any_missed


def report_windows(paths):
    head = ["work", "ours", ""]
    medians = read_medians(paths)
    works = dict.fromkeys(row.work for row in read_rows())
    rows = [[work, figure(medians[f"{work}/ours"]["ns"]), ""] for work in works
            if f"{work}/ours" in medians]
    write_table("windows", head[:2], [row[:2] for row in rows],
                machine("x86_64-w64-mingw32-g++-posix") + ", under Wine")
    print_table(head, rows)
    return False


if __name__ == "__main__":
    arguments = sys.argv[1:]
    windows = arguments[:1] == ["--windows"]
    sys.exit(report_windows(arguments[1:]) if windows else report_native(arguments))
