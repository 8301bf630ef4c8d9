#!/usr/bin/env python3
"""failingSystem.py LIBRARY: what is lost when a program that logs or downloads is killed, has no room
on the disk or no descriptors. Runs beside tests/servers/withServers and prints what it saw; ends with
status 1 when something does not hold. Mounts small file systems, which takes root, or leaves them out.
"""
import collections
import contextlib
import ctypes
import os
import random
import resource
import subprocess
import sys
import tempfile
import time

KILLS = 40
LARGE = 256 * 20000  # bytes of the server's /large

library = sys.argv[1]
failures = []


def url(path):
    return f"http://127.0.0.1:{os.environ['PELMORA_HTTP_PORT']}{path}".encode()


def downloads(c, path, file):
    return c.pelmora_download(url(path), file.encode(), 20000, None, None) == 0


def must(holds, what):
    print(f"  {'as promised' if holds else 'NOT AS PROMISED'}: {what}")
    if not holds:
        failures.append(what)


def child(role, *arguments, folder, **options):
    return subprocess.Popen([sys.executable, __file__, library, role, *arguments],
                            env=dict(os.environ, TMPDIR=folder), stdout=subprocess.PIPE, **options)


# What the children do. A log that cannot be opened says so on standard output.

def log_for_ever(c):
    item = 0
    while True:
        c.pelmora_log_write(b"item %d\n" % item)
        os.write(1, b"%d\n" % item)
        item += 1


def download_for_ever(c, file):
    os.write(1, b"begun\n")
    while True:
        c.pelmora_download(url("/large"), file.encode(), 20000, None, None)


def log_and_download(c, file, other):
    for _ in range(100):
        c.pelmora_log_write(b"x" * 1000 + b"\n")
    print(int(downloads(c, "/large", file)), int(downloads(c, "/text", other)))


def without_descriptors(c, file):
    resource.setrlimit(resource.RLIMIT_NOFILE, (40, 40))
    taken = []
    with contextlib.suppress(OSError):
        while True:
            taken.append(os.open("/dev/null", os.O_RDONLY))
    c.pelmora_log_write(b"x")
    first = downloads(c, "/text", file)
    left = os.path.exists(file)
    for descriptor in taken:
        os.close(descriptor)
    print(int(first), int(left), int(downloads(c, "/text", file)))


# What is expected of them.

def killed_while_logging(folder):
    items = lost = 0
    for _ in range(KILLS):
        program = child("log_for_ever", folder=folder)
        said = program.stdout.readline()
        time.sleep(random.random() * 0.05)
        program.kill()
        said += program.stdout.read()
        program.wait()
        with open(f"{folder}/errors.txt", "rb") as log:
            written = set(log.read().splitlines())
        acknowledged = said[:said.rfind(b"\n")].split(b"\n")
        items += len(acknowledged)
        lost += sum(b"item " + number not in written for number in acknowledged)
    must(lost == 0, f"killed while logging: of {items} items whose call had returned, {lost} are lost")


def killed_while_downloading(folder):
    file = f"{folder}/file"
    seen = collections.Counter()
    for _ in range(KILLS):
        with open(file, "wb") as old:
            old.write(b"old")
        program = child("download_for_ever", file, folder=folder)
        program.stdout.readline()
        time.sleep(random.random() * 0.1)
        program.kill()
        program.wait()
        size = os.path.getsize(file) if os.path.exists(file) else None
        seen[{None: "absent", 3: "old", LARGE: "whole"}.get(size, "cut short")] += 1
    print("  killed while downloading, the file is:", dict(seen))


def full_disks(folder):
    small = f"{folder}/small"
    os.mkdir(small)
    for what, options in ("full", "size=64k"), ("without inodes", "nr_inodes=1"), ("read-only", "ro"):
        if subprocess.run(["mount", "-t", "tmpfs", "-o", options, "tmpfs", small], check=False,
                          stderr=subprocess.DEVNULL).returncode:
            print(f"  left out, because nothing can be mounted: a disk that is {what}")
            continue
        try:
            program = child("log_and_download", f"{small}/file", f"{folder}/other", folder=small)
            answers = program.communicate()[0]
            left = set(os.listdir(small)) - {"errors.txt"}
            must(program.returncode == 0 and answers.endswith(b"0 1\n") and not left,
                 f"on a disk that is {what}, the log goes on, a download fails and leaves nothing, "
                 f"the next one elsewhere works")
        finally:
            subprocess.run(["umount", small], check=True)


def used_up_descriptors(folder):
    answers = child("without_descriptors", f"{folder}/unmade", folder=folder).communicate()[0]
    must(answers.endswith(b"0 0 1\n"), "without descriptors a download fails, and works when there are some")


if len(sys.argv) > 2:
    globals()[sys.argv[2]](ctypes.CDLL(library), *sys.argv[3:])
else:
    for test in killed_while_logging, killed_while_downloading, full_disks, used_up_descriptors:
        with tempfile.TemporaryDirectory() as work:
            test(work)
    sys.exit(bool(failures))
