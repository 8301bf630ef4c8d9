#!/usr/bin/env python3
"""consume.py [OPTION...] PREFIX WORK: uses the Pelmora that is installed in PREFIX as its users do, and runs
what it builds in the folder WORK: programs in C++ and in C, by CMake in all build types and by
pkg-config. Prints what fails; silent when nothing does.

--install BUILD      installs this build into PREFIX first, by way of another folder
--toolchain FILE     CMake's toolchain file, of a cross compiler
--emulator COMMAND   runs the programs, otherwise they run by themselves
--cxx, --cc PROGRAM  the compilers, otherwise the system's; for pkg-config those of the cross compiler, too
"""
import argparse
import os
import pathlib
import re
import shlex
import shutil
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
CONFIGURATIONS = ["Debug", "Release", "RelWithDebInfo", "MinSizeRel"]
PRINTED = "5 mcg\n"


class Failure(Exception):
    """What is printed in the end."""


def run(command, **options):
    """The output of a command that has to succeed."""
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, **options)
    if done.returncode:
        raise Failure(f"{shlex.join(map(str, command))}\n{done.stdout}")
    return done.stdout


class Consumer:
    def __init__(self, options):
        self.prefix = options.prefix.resolve()
        self.work = options.work.resolve()
        self.emulator = shlex.split(options.emulator)
        self.toolchain = options.toolchain
        self.compilers = {"cpp": options.cxx, "c": options.cc}
        self.is_windows = any(self.prefix.glob("bin/*.dll"))

    def starts(self, program, **environment):
        """Runs a program and looks at what it prints, and which libraries it asks for."""
        if self.is_windows:
            program = program.with_suffix(".exe")
        printed = run([*self.emulator, program], env=os.environ | environment)
        if printed != PRINTED:
            raise Failure(f"{program} prints {printed!r}")
        if not self.is_windows:
            needed = re.findall(r"NEEDED +(libpelmora\S*)", run(["objdump", "-p", program]))
            if [name for name in needed if name not in self.names()]:
                raise Failure(f"{program} asks for {needed}, not for one of {self.names()}")

    def names(self):
        """What the libraries are called within, as docs/versions.md says."""
        def number(header, name):
            [file] = self.prefix.rglob(f"include/pelmora/{header}")
            return re.search(rf"^#define PELMORA_{name} (\d+)", file.read_text(), re.M)[1]
        major, minor = number("version.h", "VERSION_MAJOR"), number("version.h", "VERSION_MINOR")
        return f"libpelmora.so.{major}.{minor}", f"libpelmora-c.so.{number('c/pelmora.h', 'ABI')}"

    def cmake(self, language):
        """All build types, which one project of Ninja builds side by side."""
        build = self.work / language
        options = [f"-DCMAKE_PREFIX_PATH={self.prefix}", "-DCMAKE_CROSS_CONFIGS=all",
                   f"-DCMAKE_CONFIGURATION_TYPES={';'.join(CONFIGURATIONS)}"]
        if self.toolchain:
            options.append(f"-DCMAKE_TOOLCHAIN_FILE={self.toolchain}")
        else:
            options.append(f"-DCMAKE_{'C' if language == 'c' else 'CXX'}_COMPILER={self.compilers[language]}")
        run(["cmake", "-G", "Ninja Multi-Config", "-S", HERE / language, "-B", build, *options])
        run(["cmake", "--build", build, "--target", "all:all"])
        for configuration in CONFIGURATIONS:
            self.starts(build / configuration / "program")

    def pkg_config(self, language, package):
        """By the files that are where the package is now, wherever it was made for."""
        [file] = self.prefix.rglob(f"{package}.pc")
        flags = run(["pkg-config", "--cflags", "--libs", package],
                    env=os.environ | {"PKG_CONFIG_PATH": str(file.parent)})
        folder = self.work / "pkg-config" / language
        folder.mkdir(parents=True)
        standard = ["-std=c++20"] if language == "cpp" else []
        run([self.compilers[language], *standard, HERE / language / f"main.{language}", *shlex.split(flags),
             "-o", folder / "program"])
        if self.is_windows:
            for library in self.prefix.glob("bin/*.dll"):
                shutil.copy(library, folder)
        self.starts(folder / "program", LD_LIBRARY_PATH=str(file.parent.parent))


def install(build, prefix):
    """Nothing that is installed may know where that was."""
    elsewhere = prefix.with_name("elsewhere")
    for folder in (prefix, elsewhere):
        shutil.rmtree(folder, ignore_errors=True)
    run(["cmake", "--install", build, "--prefix", elsewhere])
    elsewhere.rename(prefix)


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("prefix", type=pathlib.Path)
    parser.add_argument("work", type=pathlib.Path)
    parser.add_argument("--install", metavar="BUILD")
    parser.add_argument("--toolchain")
    parser.add_argument("--emulator", default="")
    parser.add_argument("--cxx", default="c++")
    parser.add_argument("--cc", default="cc")
    options = parser.parse_args()
    shutil.rmtree(options.work, ignore_errors=True)
    if options.install:
        install(options.install, options.prefix)
    consumer = Consumer(options)
    consumer.cmake("cpp")
    consumer.cmake("c")
    consumer.pkg_config("cpp", "pelmora")
    consumer.pkg_config("c", "pelmora-c")


try:
    main()
except Failure as failure:
    sys.exit(f"consume.py: {failure}")
