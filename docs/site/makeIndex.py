"""makeIndex.py TAGFILE CSHARP_TAGFILE HTML VERSION: writes HTML/names.html, every documented name with a link,
from Doxygen's tag files, with a field that leaves only the names one looks for."""
import html
import pathlib
import re
import sys
import xml.etree.ElementTree

here = pathlib.Path(__file__).resolve().parent
site = pathlib.Path(sys.argv[3])
# Enumerators without a comment have no place of their own, but in their enumeration's.
ENUMERATOR = re.compile(r"g?(g?a[0-9a-f]{32})a[0-9a-f]{32}")
SCRIPT = """<script>
const wanted = document.getElementById("wanted"), rows = [...document.querySelectorAll("#names li")];
wanted.oninput = () => rows.forEach(row =>
    row.hidden = !row.textContent.toLowerCase().includes(wanted.value.trim().toLowerCase()));
</script>
"""

names = {} # what is shown, with the scope, to the scope and the link


def collect(tags, folder="", language=""):
    """The names of a tag file whose pages are in a folder of the site."""
    for compound in xml.etree.ElementTree.parse(tags).getroot():
        kind, scope = compound.get("kind"), compound.findtext("name")
        shown = scope.replace("::", ".") if language else scope
        if kind in ("class", "struct") and "::" in scope:
            where = shown[:-len(scope.split("::")[-1])].rstrip(":.") + language
            names[f"{scope.split('::')[-1]} {shown}{language}"] = (where, folder + compound.findtext("filename"))
        if kind not in ("class", "struct", "namespace", "group"):
            continue
        for member in compound.findall("member") + compound.findall(".//enumvalue"):
            name = member.findtext("name") or member.text
            file = member.findtext("anchorfile") or member.get("file")
            anchor = member.findtext("anchor") or member.get("anchor")
            if name and file and not name.startswith(("~", "@")):
                anchor = ENUMERATOR.sub(r"\1", anchor)
                isC = kind == "group" or "::" not in scope and kind == "struct"
                where = "C" if isC else shown + language
                names.setdefault(f"{name} {where}", (where, f"{folder}{file}#{anchor}"))


collect(sys.argv[1])
collect(sys.argv[2], "csharp/", " in C#")
rows = "".join(
    f'<li><a href="{link}">{html.escape(key.split(" ")[0])}</a> <span>{html.escape(where)}</span></li>\n'
    for key, (where, link) in sorted(names.items(), key=lambda entry: entry[0].lower()))

version = sys.argv[4]
head = (here / "header.html").read_text()
for name, value in {"$relpath^$stylesheet": "style.css", "$relpath^": "", "$title": "Index",
                    "$projectname": "Pelmora", "$projectnumber": version}.items():
    head = head.replace(name, value)
site.joinpath("names.html").write_text(
    head + '<div class="title">Index</div>\n<input id="wanted" type="search" autofocus '
    'placeholder="a name, or a part of one" aria-label="a name, or a part of one">\n'
    f'<ul id="names">\n{rows}</ul>\n{SCRIPT}' + (here / "footer.html").read_text(), encoding="utf-8")
