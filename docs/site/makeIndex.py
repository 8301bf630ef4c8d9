"""makeIndex.py TAGFILE HTML VERSION: writes HTML/names.html, every documented name with a link, from Doxygen's
tag file, with a field that leaves only the names one looks for."""
import html
import pathlib
import re
import sys
import xml.etree.ElementTree

here = pathlib.Path(__file__).resolve().parent
site = pathlib.Path(sys.argv[2])
# Enumerators without a comment have no place of their own, but in their enumeration's.
ENUMERATOR = re.compile(r"g?(g?a[0-9a-f]{32})a[0-9a-f]{32}")
SCRIPT = """<script>
const wanted = document.getElementById("wanted"), rows = [...document.querySelectorAll("#names li")];
wanted.oninput = () => rows.forEach(row =>
    row.hidden = !row.textContent.toLowerCase().includes(wanted.value.trim().toLowerCase()));
</script>
"""

names = {}
for compound in xml.etree.ElementTree.parse(sys.argv[1]).getroot():
    kind, scope = compound.get("kind"), compound.findtext("name")
    if kind in ("class", "struct") and "::" in scope:
        names[scope.split("::")[-1] + " " + scope] = (scope.rpartition("::")[0], compound.findtext("filename"))
    if kind not in ("class", "struct", "namespace", "group"):
        continue
    for member in compound.findall("member") + compound.findall(".//enumvalue"):
        name = member.findtext("name") or member.text
        file = member.findtext("anchorfile") or member.get("file")
        anchor = member.findtext("anchor") or member.get("anchor")
        if name and file and not name.startswith(("~", "@")):
            anchor = ENUMERATOR.sub(r"\1", anchor)
            where = "C" if kind == "group" or "::" not in scope and kind == "struct" else scope
            names.setdefault(f"{name} {where}", (where, f"{file}#{anchor}"))
rows = "".join(
    f'<li><a href="{link}">{html.escape(key.split(" ")[0])}</a> <span>{html.escape(where)}</span></li>\n'
    for key, (where, link) in sorted(names.items(), key=lambda entry: entry[0].lower()))

version = sys.argv[3]
head = (here / "header.html").read_text()
for name, value in {"$relpath^$stylesheet": "style.css", "$relpath^": "", "$title": "Index",
                    "$projectname": "Pelmora", "$projectnumber": version}.items():
    head = head.replace(name, value)
site.joinpath("names.html").write_text(
    head + '<div class="title">Index</div>\n<input id="wanted" type="search" autofocus '
    'placeholder="a name, or a part of one" aria-label="a name, or a part of one">\n'
    f'<ul id="names">\n{rows}</ul>\n{SCRIPT}' + (here / "footer.html").read_text(), encoding="utf-8")
