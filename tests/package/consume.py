#!/usr/bin/env python3
"""consume.py [OPTION...] PREFIX WORK: uses the Pelmora that is installed in PREFIX as its users do, and runs
what it builds in the folder WORK: programs in C++ and in C, by CMake in all build types and by
pkg-config. Prints what fails; silent when nothing does.

--install BUILD      installs this build into PREFIX first, by way of another folder
--toolchain FILE     CMake's toolchain file, of a cross compiler
--emulator COMMAND   runs the programs, otherwise they run by themselves; with ; between its words, as in CMake
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
SOURCES = {"cpp": HERE / "cpp/main.cpp", "c": HERE.parent.parent / "examples/c/infusion.c"}
PRINTED = {"cpp": "5 mcg\n", "c": "5 mcg/kg/min at 1.6 mg/mL: 13.1 mL/hr\n"}


class Failure(Exception):
    """What is printed in the end."""


def run(command, **options):
    """The output of a command that has to succeed."""
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, **options)
    if done.returncode:
        raise Failure(f"{shlex.join(map(str, command))}\n{done.stdout}")
    return done.stdout


class Consumer:
    def __init__(self, prefix, work, cxx="c++", cc="cc", toolchain=None, emulator=()):
        self.prefix = prefix.resolve()
        self.work = work.resolve()
        self.compilers = {"cpp": cxx, "c": cc}
        self.toolchain = toolchain
        self.emulator = emulator
        self.is_windows = any(self.prefix.glob("bin/*.dll"))

    def consume(self):
        shutil.rmtree(self.work, ignore_errors=True)
        self.cmake("cpp")
        self.cmake("c")
        self.pkg_config("cpp", "pelmora")
        self.pkg_config("c", "pelmora-c")

    def starts(self, program, language, **environment):
        """Runs a program and looks at what it prints, and which libraries it asks for."""
        if self.is_windows:
            program = program.with_suffix(".exe")
        printed = run([*self.emulator, program], env=os.environ | environment)
        if printed != PRINTED[language]:
            raise Failure(f"{program} prints {printed!r}")
        if not self.is_windows:
            needed = re.findall(r"NEEDED +(libpelmora\S*)", run(["objdump", "-p", program]))
            if [name for name in needed if name not in self.names()]:
                raise Failure(f"{program} asks for {needed}, not for one of {self.names()}")

    def names(self):
        """What the libraries are called within, as docs/versions.md says."""
        def number(header, name):
            text = (self.prefix / "include/pelmora" / header).read_text()
            return re.search(rf"^#define PELMORA_{name} (\d+)", text, re.M)[1]
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
            self.starts(build / configuration / "program", language)

    def pkg_config(self, language, package):
        """By the files that are where the package is now, wherever it was made for."""
        [file] = self.prefix.glob(f"lib/**/{package}.pc")
        flags = run(["pkg-config", "--cflags", "--libs", package],
                    env=os.environ | {"PKG_CONFIG_PATH": str(file.parent)})
        folder = self.work / "pkg-config" / language
        folder.mkdir(parents=True)
        standard = ["-std=c++20"] if language == "cpp" else []
        run([self.compilers[language], *standard, SOURCES[language], *shlex.split(flags),
             "-o", folder / "program"])
        if self.is_windows:
            for library in self.prefix.glob("bin/*.dll"):
                shutil.copy(library, folder)
        self.starts(folder / "program", language, LD_LIBRARY_PATH=str(file.parent.parent))


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
    parser.add_argument("--emulator", default=(), type=lambda words: words.split(";") if words else ())
    parser.add_argument("--cxx", default="c++")
    parser.add_argument("--cc", default="cc")
    options = vars(parser.parse_args())
    if build := options.pop("install"):
        install(build, options["prefix"])
    Consumer(**options).consume()


if __name__ == "__main__":
    try:
        main()
    except Failure as failure:
        sys.exit(f"consume.py: {failure}")
