#!/usr/bin/env python3
"""packages.py FOLDER WORK EMULATOR: uses the packages in FOLDER as their users do, each unpacked into a folder
of WORK: the archives and Debian's packages by consume.py, with their example programs, and the NuGet
package by mono. EMULATOR runs programs of Windows, as for consume.py. Prints what it does, and what fails.
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys

from consume import HERE, Consumer, Failure, run

ROOT = HERE.parent.parent
MINGW = "x86_64-w64-mingw32-"


def unpacked(package, folder, form=None):
    """The folder that an archive has at its top, or the one that it is unpacked into."""
    shutil.unpack_archive(package, folder, form)
    inside = list(folder.iterdir())
    return inside[0] if len(inside) == 1 else folder


def infusions(program, examples, emulator=()):
    """The example's orders have to print what stands beside them."""
    run(["cmake", f"-DPROGRAM={program}", f"-DEMULATOR={';'.join(emulator)}",
         "-DORDERS=textbook.txt", "-DEXPECTED=textbook.expected", "-P",
         ROOT / "examples/infusions/compareOutput.cmake"], cwd=examples / "infusions")


def look_into_c(library, objdump):
    """Exports and imports of the C library as in the builds that are tested."""
    run([sys.executable, "-B", ROOT / "tests/c/checkExports.py", library, objdump, ROOT / "pelmora/c/pelmora.h",
         ROOT / "pelmora/c/exports.txt", *(ROOT / "tests/c").glob("*.c")])


def look_into(libraries, objdump):
    """The same of both, and hardening; no debug information."""
    cpp, c = libraries
    run([ROOT / "scripts/exports", cpp])
    look_into_c(c, objdump)
    if cpp.suffix != ".dll": # where it looks for symbols that a stripped one lacks
        run([sys.executable, "-B", ROOT / "tests/checkHardening.py", objdump, cpp, c])
    for library in libraries:
        if ".debug_info" in run([objdump, "--section-headers", library]):
            raise Failure(f"{library} is not stripped")


def use_archive(root, work, libraries, objdump, **how):
    documents = root / "share/doc/Pelmora"
    emulator = how.get("emulator", ())
    suffix = ".exe" if emulator else ""
    look_into([root / library for library in libraries], objdump)
    infusions(root / f"bin/infusions{suffix}", documents / "examples", emulator)
    Consumer(root, work / "programs", **how).consume()

    # The examples, as a project of its own.
    toolchain = [f"-DCMAKE_TOOLCHAIN_FILE={how['toolchain']}"] if emulator else []
    run(["cmake", "-G", "Ninja", "-S", documents / "examples", "-B", work / "examples",
         f"-DCMAKE_PREFIX_PATH={root}", *toolchain])
    run(["cmake", "--build", work / "examples"])
    infusions(work / f"examples/bin/infusions{suffix}", documents / "examples", emulator)


def link_for_windows(root, work):
    """The C library for 32-bit programs, which do not run here, and the form that Microsoft's linker takes."""
    x86 = root / "x86"
    look_into_c(x86 / "bin/pelmora-c.dll", "i686-w64-mingw32-objdump")
    run(["cmake", "-G", "Ninja", "-S", HERE / "c", "-B", work / "x86", f"-DCMAKE_PREFIX_PATH={x86}",
         f"-DCMAKE_TOOLCHAIN_FILE={ROOT}/cmake/mingw32.cmake"])
    run(["cmake", "--build", work / "x86"])
    for prefix, compiler in (root, MINGW + "gcc-posix"), (x86, "i686-w64-mingw32-gcc-posix"):
        run([compiler, ROOT / "examples/c/infusion.c", f"-I{prefix}/include", prefix / "lib/pelmora-c.lib",
             "-o", work / "program.exe"])


def files_below(folder):
    return {path.relative_to(folder) for path in folder.rglob("*") if not path.is_dir() or path.is_symlink()}


def use_debian(packages, work):
    """Installs them into a folder where, for dpkg, what they depend on is as on this computer; removes them."""
    root = work / "root"
    database = root / "var/lib/dpkg"
    for folder in ("info", "updates"):
        (database / folder).mkdir(parents=True)
    depends = "".join(run(["dpkg-deb", "--field", package, "Depends"]) for package in packages)
    needed = set(re.findall(r"[a-z][a-z0-9.+-]+", re.sub(r"\(.*?\)", "", depends)))
    installed = pathlib.Path("/var/lib/dpkg/status").read_text().strip().split("\n\n")
    (database / "status").write_text("".join(
        f"{paragraph}\n\n" for paragraph in installed
        if re.match(r"Package: (\S+)", paragraph)[1] in needed and not paragraph.startswith("Package: libpelmora")))
    before = files_below(root)
    # Their scripts do nothing but call ldconfig, which finds nothing new on this computer.
    dpkg = ["dpkg", f"--root={root}", "--log=/dev/null", "--force-script-chrootless"]
    run([*dpkg, "--install", *packages])
    Consumer(root / "usr", work / "programs").consume()
    run([*dpkg, "--purge", *(package.name.split("_")[0] for package in packages)])
    left = [path for path in files_below(root) - before if path.parts[:3] != ("var", "lib", "dpkg")]
    if left:
        raise Failure(f"dpkg leaves {sorted(map(str, left))}")


def use_nuget(root, work):
    """The assembly and the native library are all that goes beside the program."""
    work.mkdir(parents=True)
    shutil.copy(root / "lib/net461/Pelmora.dll", work)
    shutil.copytree(root / "runtimes", work / "runtimes")
    run(["mcs", "-nologo", "-langversion:7", "-warnaserror", f"-r:{work}/Pelmora.dll", f"-out:{work}/infusions.exe",
         *(ROOT / "examples/dotnet").glob("*.cs")])
    infusions(work / "infusions.exe", ROOT / "examples", ["mono"])


def main(folder, work, emulator):
    shutil.rmtree(work, ignore_errors=True)

    def found(pattern):
        packages = [package for package in sorted(folder.glob(pattern)) if "-debug" not in package.name]
        if not packages:
            raise Failure(f"no {pattern} in {folder}")
        for package in packages:
            print(f"{package.name} ...", flush=True)
        return packages

    [archive] = found("Pelmora-*-windows-x64.zip")
    root = unpacked(archive, work / "windows")
    use_archive(root, work / "windows-use", ["bin/pelmora.dll", "bin/pelmora-c.dll"], MINGW + "objdump",
                cxx=MINGW + "g++-posix", cc=MINGW + "gcc-posix",
                toolchain=ROOT / "cmake/mingw64.cmake", emulator=emulator)
    link_for_windows(root, work / "windows-use")
    [archive] = found("Pelmora-*-linux-x64.tar.gz")
    use_archive(unpacked(archive, work / "linux"), work / "linux-use", ["lib/libpelmora.so", "lib/libpelmora-c.so"],
                "objdump", cxx="g++", cc="gcc")
    use_debian(found("*.deb"), work / "debian")
    [archive] = found("Pelmora.*.nupkg")
    use_nuget(unpacked(archive, work / "nuget", "zip"), work / "nuget-use")


if __name__ == "__main__":
    if len(sys.argv) != 4 or "--help" in sys.argv:
        sys.exit(__doc__)
    try:
        main(pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve(), sys.argv[3].split(";"))
    except Failure as failure:
        sys.exit(f"packages.py: {failure}")
