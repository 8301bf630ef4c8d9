#!/usr/bin/env python3
"""makeCatalogues.py SMALL_PO FOLDER: fills FOLDER with catalogues for the tests, made by GNU gettext.

small.*.mo    SMALL_PO in either byte order, with and without hash table
real.*.mo     catalogues of installed programs, some of them converted
real.*.pairs  what msgunfmt shows of them: identifier, NUL, first translation, NUL, ..."""
import ast
import pathlib
import re
import subprocess
import sys

small_po, folder = sys.argv[1], pathlib.Path(sys.argv[2])
folder.mkdir(parents=True, exist_ok=True)

FORMS = {
    "little": ["--endianness=little"],
    "big": ["--endianness=big"],
    "nohash": ["--no-hash"],
}
for form, options in FORMS.items():
    subprocess.run(["msgfmt", *options, "-o", folder / f"small.{form}.mo", small_po], check=True)


def pairs(catalogue):
    """The messages that msgunfmt shows, as bytes."""
    shown = subprocess.run(["msgunfmt", "--no-wrap", catalogue], check=True, capture_output=True)
    # As Latin-1, every byte is a character that the string literals below keep.
    entries = shown.stdout.decode("latin-1").split("\n\n")
    for entry in entries:
        texts = {}
        for keyword, literals in re.findall(r'^(\w+(?:\[\d\])?) ((?:".*"\n?)+)', entry, re.M):
            lines = literals.strip().split("\n")
            texts[keyword] = "".join(ast.literal_eval(line) for line in lines)
        context = texts["msgctxt"] + "\x04" if "msgctxt" in texts else ""
        text = texts.get("msgstr", texts.get("msgstr[0]"))
        yield (context + texts["msgid"]).encode("latin-1"), text.encode("latin-1")


def convert(source, target, charset, options):
    shown = subprocess.run(["msgunfmt", source], check=True, capture_output=True).stdout
    converted = subprocess.run(["msgconv", "-t", charset], input=shown, check=True, capture_output=True)
    # Something else in the header names the other encoding.
    content = converted.stdout.replace(b'"MIME-Version', b'"X-Converted-From: UTF-8\\n"\n"MIME-Version', 1)
    subprocess.run(["msgfmt", *options, "-o", target, "-"], input=content, check=True)


# From the packages gettext and gettext-base, which this script needs anyway.
locale = pathlib.Path("/usr/share/locale")
REAL = [
    ("de", "gettext-tools", "UTF-8", []),
    ("ja", "gettext-tools", "UTF-8", ["--endianness=big"]),
    ("es", "gettext-tools", "ISO-8859-1", []),
    ("ru", "gettext-tools", "CP1251", ["--no-hash"]),
    ("pl", "gettext-runtime", "UTF-8", []),
]
for language, domain, charset, options in REAL:
    made = folder / f"real.{language}.mo"
    convert(locale / language / "LC_MESSAGES" / f"{domain}.mo", made, charset, options)
    with open(made.with_suffix(".pairs"), "wb") as out:
        for msgid, msgstr in pairs(made):
            out.write(msgid + b"\0" + msgstr + b"\0")

(folder / "made").touch()
