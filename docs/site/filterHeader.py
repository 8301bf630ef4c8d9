"""filterHeader.py HEADER: prints a public header as Doxygen wants it.

In the headers a comment holds for the lines below it, up to the next comment or empty line: here each
declaration gets it. Copies, moves and destructors that the language makes speak for themselves there:
here they get a sentence. Private sections are left out: Doxygen would link to a list of the classes in
them that it does not write. The C header's comments become Doxygen's, and its sections groups.
"""
import re
import sys

OPENS_SCOPE = re.compile(r"\s*(template <[^(]*>\s*)?(inline )?(class|struct|namespace|enum|union|extern)\b")
SPECIAL = [
    (r"(virtual )?~\w+\(\).*", "Ends its life."),
    (r"(\w+)\(const \1&\) = delete;", "There are no copies of such an object."),
    (r"(\w+)& operator=\(const \1&\) = delete;", "There are no copies of such an object."),
    (r"(\w+)\(const \1&( other)?\).*", "A copy."),
    (r"(\w+)& operator=\(const \1&( other)?\).*", "Becomes a copy."),
    (r"(\w+)\(\1&&( other)?\) noexcept.*", "Takes over what the other one has."),
    (r"(\w+)& operator=\(\1&&( other)?\) noexcept.*", "Takes over what the other one has."),
    (r"friend .*bool operator==\(const (\w+)&, const \1&\) noexcept = default;",
     "Whether all members are equal."),
    (r"using (\w+_type|const_iterator) = .*", "As of a standard container or iterator."),
    (r".*\b(size|empty|begin|end)\(\) (const )?noexcept.*", "As of a standard container."),
]


def special(declaration):
    for pattern, sentence in SPECIAL:
        if re.fullmatch(pattern, declaration.strip()):
            return f"/// {sentence}"
    return None


def from_c(text):
    """The comments of the C header as those of C++."""
    def lines_of(comment):
        body = re.sub(r"^\s*\* ?", "", comment[2:-2], flags=re.M)
        return [line.rstrip() for line in body.strip("* \n").splitlines()]

    def replace(match):
        before, comment, after = match.groups()
        lines = lines_of(comment)
        if before.strip().startswith("#"):
            return before + after
        if before.strip():
            return f"{before} ///< {' '.join(lines)}{after}"
        section = re.match(r"[-=]{4} (.*?) ?[-=]*$", lines[0])
        if section:
            return open_group(section[1], lines[1:])
        if lines[0].startswith("Pelmora for C"):
            lines = ["@file", "The C interface.", "", "@defgroup c The C interface"] + lines
        return "\n".join(f"/// {line}" for line in lines) + after

    open_groups = []

    def open_group(title, lines):
        name = "c_" + re.sub(r"\W+", "_", title).lower()
        text = "/// @}\n\n" if open_groups else ""
        open_groups.append(name)
        text += f"/// @defgroup {name} {title}\n/// @ingroup c\n///\n"
        return text + "".join(f"/// {line}\n" for line in lines) + "/// @{\n"

    text = re.sub(r"([^\n]*?)[ \t]*(/\*.*?\*/)(\n?)", replace, text, flags=re.S)
    return text.replace("\n#ifdef __cplusplus\n}\n", "\n/// @}\n#ifdef __cplusplus\n}\n")


def without_private(text):
    """The text with empty lines in place of the private sections."""
    return re.sub(r"^private:\n.*?(?=^(\};|public:|protected:))", lambda match: "\n" * match[0].count("\n"),
                  text, flags=re.M | re.S)


def file_comment(lines):
    """A comment of // above the namespace, between empty lines, is about the file."""
    for i, line in enumerate(lines):
        if line.startswith("namespace"):
            break
        if line.startswith("// ") and not lines[i - 1].strip():
            end = next(k for k in range(i, len(lines)) if not lines[k].startswith("//"))
            lines[i:end] = ["/// @file"] + ["/" + comment for comment in lines[i:end]]
            break
    return lines


def with_comments(lines):
    depth = scope = 0
    comment, declaration = [], ""
    for line in lines:
        stripped = line.strip()
        if not declaration:
            if not stripped:
                comment = []
            elif stripped.startswith("///"):
                if not comment or comment[-1] is None:
                    comment = []
                comment.append(stripped)
                print(line)
                continue
            elif stripped.startswith(("//", "#", "public:", "private:", "protected:", "}")):
                comment = []
            else:
                own = special(stripped)
                if own and (not comment or comment[-1] is None):
                    print(own)
                elif comment and comment[-1] is None:
                    for part in comment[:-1]:
                        print(part)
        print(line)
        if not stripped or stripped.startswith(("//", "#")):
            continue
        declaration += line + "\n"
        code = re.sub(r"//.*|\"(\\.|[^\"\\])*\"|'(\\.|[^'\\])'", "", line)
        for character in code:
            if character == "{":
                if depth == scope and OPENS_SCOPE.match(declaration):
                    scope += 1
                    comment, declaration = [], ""
                depth += 1
            elif character == "}":
                depth -= 1
                if depth < scope:
                    scope = depth
                    comment, declaration = [], ""
        ended = depth == scope and code.rstrip().endswith((";", "}", "public:", "private:", "protected:"))
        if ended:
            declaration = ""
            if comment and comment[-1] is not None:
                comment.append(None)


path = sys.argv[1]
text = open(path, encoding="utf-8").read()
if path.endswith("c/pelmora.h"):
    text = from_c(text)
with_comments(file_comment(without_private(text).splitlines()))
