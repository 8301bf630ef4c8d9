"""list.py PACKAGE...: says what is in each package and how large it is. Folders of many small files, such
as the documentation, are one line."""
import collections
import io
import os
import pathlib
import re
import subprocess
import sys
import tarfile
import zipfile

MANY = 12


def files_of(package):
    """Path and size in bytes of every file in the package."""
    if package.suffix == ".deb":
        data = subprocess.run(["dpkg-deb", "--fsys-tarfile", package], check=True, capture_output=True).stdout
        archive = tarfile.open(fileobj=io.BytesIO(data))
    elif package.name.endswith(".tar.gz"):
        archive = tarfile.open(package)
    else:
        with zipfile.ZipFile(package) as archive:
            return [(entry.filename, entry.file_size) for entry in archive.infolist() if not entry.is_dir()]
    with archive:
        return [(member.name.removeprefix("./") + (f" -> {member.linkname}" if member.issym() else ""), member.size)
                for member in archive if not member.isdir()]


def lines_of(files):
    """Each file's line, or that of the highest folder in which there are many and no libraries."""
    count = collections.Counter()
    libraries = set()
    for path, size in files:
        for folder in pathlib.PurePath(path).parents:
            count[folder] += 1
            if re.search(r"\.(dll|exe|debug|so(\.[0-9.]+)?)$", path):
                libraries.add(folder)
    sizes = collections.Counter()
    for path, size in files:
        folders = [folder for folder in pathlib.PurePath(path).parents
                   if count[folder] > MANY and folder not in libraries and folder.parts]
        name = f"{folders[-1]}/ ({count[folders[-1]]} files)" if folders else path
        sizes[name] += size
    return sorted(sizes.items())


for argument in sys.argv[1:]:
    package = pathlib.Path(argument)
    files = files_of(package)
    print(f"{package.name}: {os.path.getsize(package):,} bytes, {len(files)} files of {sum(s for _, s in files):,} bytes")
    for path, size in lines_of(files):
        print(f"{size:>14,}  {path}")
    print()
