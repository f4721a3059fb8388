#!/usr/bin/env python3
"""Turns the plain comments that document the installed headers' API into
Doxygen comments, so they reach the API documentation.

    tools/docs/doccomments.py            rewrite the installed headers in place
    tools/docs/doccomments.py --check    list what would change, exit 1 if anything
    tools/docs/doccomments.py FILE...    only these headers

A block of `//` lines directly above a declaration that the documentation shows
(a class, function, enumeration, enumerator, variable, typedef, Q_PROPERTY,
signal or slot in a public or protected section, or at namespace scope) becomes
`///`; a trailing `// ...` after such a declaration becomes `///< ...`.
Everything else stays a plain comment: file remarks, comments above private
members, forward declarations, namespaces, preprocessor lines and access
labels, comments followed by a blank line, and comments inside function bodies.
Running it again changes nothing.
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]

ACCESS = re.compile(r"^\s*(public|protected|private)(\s+(Q_SLOTS|slots))?\s*:(?!:)")
SIGNALS = re.compile(r"^\s*(Q_SIGNALS|signals)\s*:")
NOT_DECLARATION = re.compile(
    r"^\s*(#|//|}|namespace\b|friend\b|using\s+namespace\b|Q_OBJECT\b|Q_GADGET\b|"
    r"Q_DISABLE_COPY|Q_ENUM|Q_FLAG|Q_DECLARE_|Q_INTERFACES|Q_CLASSINFO|template\s*<\s*>?\s*$)")
FORWARD = re.compile(r"^\s*(class|struct|union|enum(\s+class)?)\s+[\w:]+\s*;")


def public_headers():
    text = (ROOT / "src" / "CMakeLists.txt").read_text()
    headers = []
    for folder, body in re.findall(r"set\((\w+)_PUBLIC\s+([^)]*)\)", text):
        for name in body.split():
            if name.endswith(".h"):
                headers.append(ROOT / "src" / folder / name)
    return headers


def strip_code(line):
    """The line without strings, character literals and its trailing comment."""
    line = re.sub(r'"(\\.|[^"\\])*"', '""', line)
    line = re.sub(r"'(\\.|[^'\\])*'", "''", line)
    cut = line.find("//")
    return line if cut < 0 else line[:cut]


class Scope:
    def __init__(self, kind, access):
        self.kind = kind      # namespace, class, enum, other
        self.access = access  # for classes: public, protected, private


def documented_here(stack):
    """Whether a declaration at the current position appears in the documentation."""
    for scope in stack:
        if scope.kind == "other":
            return False
    top = stack[-1] if stack else None
    if top is None or top.kind in ("namespace", "enum"):
        return True
    return top.access != "private"


def convert(lines):
    out = list(lines)
    stack = []
    pending = ""   # code of the statement being read, to classify a brace
    comment_start = None
    in_block_comment = False
    for i, line in enumerate(lines):
        stripped = line.strip()
        if in_block_comment:
            if "*/" in line:
                in_block_comment = False
            continue
        if stripped.startswith("/*") and "*/" not in stripped:
            in_block_comment = True
            comment_start = None
            continue
        if stripped.startswith("//"):
            if comment_start is None:
                comment_start = i
            continue
        block = comment_start
        comment_start = None

        if stripped == "":
            pending = pending if pending.strip() else ""
            continue
        if stripped.startswith("#"):
            continue

        access = ACCESS.match(line)
        if access and stack and stack[-1].kind == "class":
            stack[-1].access = access.group(1)
            continue
        if SIGNALS.match(line) and stack and stack[-1].kind == "class":
            stack[-1].access = "public"
            continue

        is_property = stripped.startswith("Q_PROPERTY")
        declaration = (not NOT_DECLARATION.match(line) and not FORWARD.match(line)
                       and not pending.strip())
        visible = documented_here(stack) or (is_property and stack and stack[-1].kind == "class")
        if declaration and visible:
            if block is not None:
                for j in range(block, i):
                    out[j] = re.sub(r"^(\s*)//(?!/)", r"\1///", lines[j])
            code, sep, comment = line.partition("//")
            if sep and not comment.startswith("/") and re.search(r"[;,]\s*$|^\s*\w+\s*(=\s*[^,]+)?\s*$", strip_code(line)):
                out[i] = code + "///<" + comment

        # Track scopes through the line's braces.
        code = strip_code(line)
        for ch in code:
            if ch == "{":
                head = pending
                if re.search(r"\bnamespace\b", head):
                    kind, default = "namespace", None
                elif re.search(r"\benum\b", head):
                    kind, default = "enum", None
                elif re.search(r"\b(class|struct|union)\b", head) and "(" not in head.split(":")[0] \
                        and "=" not in head:
                    kind = "class"
                    default = "private" if re.search(r"\bclass\b", head) else "public"
                else:
                    kind, default = "other", None
                stack.append(Scope(kind, default))
                pending = ""
            elif ch == "}":
                if stack:
                    stack.pop()
                pending = ""
            elif ch == ";" or (ch == "," and stack and stack[-1].kind == "enum"):
                pending = ""
            else:
                pending += ch
        pending += " "
        if re.match(r"^\s*QT?_[A-Z_]+\b[^;]*$", code) and code.count("(") == code.count(")"):
            pending = ""  # Qt's declaration macros end without a semicolon
    return out


def main(argv):
    check = "--check" in argv
    files = [pathlib.Path(a).resolve() for a in argv if not a.startswith("--")] or public_headers()
    changed = []
    for path in files:
        text = path.read_text()
        lines = text.split("\n")
        new = "\n".join(convert(lines))
        if new != text:
            changed.append(path)
            if not check:
                path.write_text(new)
    for path in changed:
        shown = path.relative_to(ROOT) if ROOT in path.parents else path
        print(("would change " if check else "changed ") + str(shown))
    return 1 if check and changed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
