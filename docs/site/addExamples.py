"""addExamples.py TAGFILE HTML LANGUAGES PAGES GUIDE...: leads from each function's place in the reference to the
guides whose code in one of these languages calls it, by Doxygen's tag file. PAGES is where the guides' pages are,
seen from HTML. Fails and names the functions that no guide shows."""
import html
import pathlib
import re
import sys
import xml.etree.ElementTree

# What a language calls by itself, or what speaks for itself in a container.
NO_EXAMPLE = {"size", "empty", "begin", "end", "Equals", "GetHashCode"}

tags, site, languages, pages_folder, *paths = sys.argv[1:]
site = pathlib.Path(site)
root = xml.etree.ElementTree.parse(tags).getroot()
code_block = re.compile(rf"^```(?:{languages})(?: windows)?\n(.*?)^```$", re.M | re.S)

guides = [] # the link to it, the names that it calls, all its names
for path in paths:
    text = pathlib.Path(path).read_text(encoding="utf-8")
    code = "\n".join(code_block.findall(text))
    file = pages_folder + "md_" + re.sub(r"\W", "_", path.removesuffix(".md")) + ".html"
    title = re.match(r"# (.*)", text)[1]
    guides.append((f'<a href="{file}">{html.escape(title)}</a>',
                   set(re.findall(r"(\w+)\(", code)), set(re.findall(r"\w+", code))))


def functions():
    """The name, the page and the place of every public function with a name of its own."""
    for compound in root:
        if compound.get("kind") not in ("class", "struct", "namespace", "group"):
            continue
        scope = compound.findtext("name")
        for member in compound.findall("member[@kind='function']") + compound.findall("member[@kind='property']"):
            name = member.findtext("name")
            is_own = re.fullmatch(r"\w+", name) and not name.startswith("operator")
            if is_own and name != scope.split("::")[-1] and member.get("protection") is None:
                yield name, member.findtext("anchorfile"), member.findtext("anchor")


def add(text, anchor, links):
    """The page with the links at the end of what it says at that place: under the declaration, or in the list
    of members where everything is said there."""
    begin = text.index(f'<a id="{anchor}"')
    description = text.find('<div class="memdoc">', begin)
    following = text.find("<a id=", begin + 1)
    if description >= 0 and not 0 <= following < description:
        end = text.index("\n</div>\n</div>", description)
        return text[:end] + links + text[end:]
    end = text.index("<br /></td></tr>", text.index(f'<tr class="memdesc:{anchor}">'))
    return text[:end] + links + text[end:].removeprefix("<br />")


missing, pages = set(), {}
for name, page, anchor in functions():
    shown = ([link for link, calls, _ in guides if name in calls]
             or [link for link, _, words in guides if name in words]) # handed on, not called
    if name in NO_EXAMPLE:
        continue
    if shown:
        pages.setdefault(page, []).append((anchor, ", ".join(shown)))
    else:
        missing.add(name)
for page, places in pages.items():
    text = site.joinpath(page).read_text(encoding="utf-8")
    for anchor, links in places:
        text = add(text, anchor, f'<span class="examples">In use: {links}</span>')
    site.joinpath(page).write_text(text, encoding="utf-8")
if missing:
    sys.exit("no guide shows: " + " ".join(sorted(missing)))
