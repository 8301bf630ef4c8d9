"""filterPage.py PAGE: prints a page in Markdown as Doxygen wants it.

Headings get the names by which GitHub knows them, with the page's before it, because Doxygen has one list of
names for all pages. Links to what is not a page lose their target, a graph for GitHub becomes one for
Graphviz, and the words after a block's language, which are for the tests, go.
"""
import os
import re
import sys

path = os.path.relpath(sys.argv[1])
text = open(path, encoding="utf-8").read()


def name_of(page, heading):
    return re.sub(r"\W", "_", page) + "-" + heading


def heading(match):
    slug = re.sub(r"[^\w -]", "", match[2].lower()).replace(" ", "-")
    return f"{match[1]} {match[2]} {{#{name_of(path, slug)}}}"


def link(match):
    words, target = match.groups()
    page, _, place = target.partition("#")
    if place and not re.match(r"[a-z]+:", target):
        page = os.path.relpath(os.path.join(os.path.dirname(path), page)) if page else path
        return f"[{words}](#{name_of(page, place)})"
    if re.match(r"[a-z]+:|.*\.(md|png)$", target):
        return match[0]
    return words if "`" in words else f"`{words}`"


def graph(match):
    nodes = match[1].replace("graph TD", "").replace("-->", "->")
    nodes = re.sub(r"(\w+)\[(\".*?\")\]", r"\1 [label=\2]", nodes)
    return ("@dot\ndigraph {\nnode [shape=box style=rounded fontname=\"sans-serif\"]\n" + nodes
            + "\n}\n@enddot\n")


def picture(match):
    words, target = match.groups()
    return f"![{' '.join(words.split())}]({os.path.basename(target)})"


text = re.sub(r"!\[([^][]*)\]\(([^()\s]*)\)", picture, text)
text = re.sub(r"(?<!!)\[([^][]*)\]\(([^()\s]*)\)", link, text)
text = re.sub(r"^(##+) (.*)$", heading, text, flags=re.M)
text = re.sub(r"^```mermaid\n(.*?)^```\n", graph, text, flags=re.M | re.S)
text = re.sub(r"^```(\w+) .*$", r"```\1", text, flags=re.M)
text = text.replace("```csharp\n", "```\n") # whose names would lead to pages that there are not
text = re.sub(r"<!--.*?-->\n?", "", text)
text = re.sub(r"(`[^`\n]*)%(\w[^`\n]*`)", r"\1%%\2", text)
print(text.replace("# Pelmora", "# %Pelmora"))
