#!/usr/bin/env python3
"""Filter through which Doxygen reads the headers, whose comments are plain ones.

    headers.py HEADER

- A comment above declarations becomes their documentation: it is repeated for each of them, up to
  the next comment or empty line.
- "// ---- TITLE ----" begins a group of members.
- What Doxygen would take for markup in a comment is escaped.
"""

import re
import sys

SECTION = re.compile(r"\s*// ---- (.*?)(?: ----|; .* ----)$")


def escaped(text):
    return re.sub(r'([\\@<>#%"]|::)', r"\\\1", text) if text else text


def documentation(comment):
    return [re.sub(r"// ?(.*)", lambda line: "/// " + escaped(line[1]), line) for line in comment]


def trailing(line):
    """What stands behind an enumerator says what it is."""
    if "NOLINT" in line:
        return re.sub(r"\s*// NOLINT.*", "", line)
    return re.sub(r"^(\s*\w.*\w,?)\s+// (.*)", lambda m: m[1] + " ///< " + escaped(m[2]), line)


def blocks(lines):
    """Runs of lines without an empty one among them."""
    block = []
    for line in lines:
        if line.strip():
            block.append(line)
        elif block:
            yield block
            block = []
    if block:
        yield block


class Filter:
    def __init__(self):
        self.out = ["/// @file"]
        self.in_group = False
        self.is_open = False  # the last line belongs to a declaration that goes on

    def close_group(self):
        if self.in_group:
            self.out.append("///@}")
        self.in_group = False

    def block(self, lines):
        if section := SECTION.match(lines[0]):
            self.close_group()
            self.out += [f"/// @name {escaped(section[1])}"] + documentation(lines[1:]) + ["///@{"]
            self.in_group = True
        elif all(line.lstrip().startswith("//") for line in lines):
            self.out += ["/// @file"] + documentation(lines)
        else:
            self.declarations(lines)
        self.out.append("")

    def declarations(self, lines):
        comment = []
        continued = False  # the line before began a comment or a declaration that goes on
        for line in lines:
            code = re.sub(r"\s*//.*", "", line).strip()
            if not code:
                comment = comment + [line] if continued else [line]
                continued = True
                continue
            if re.match(r"(\}|public:|private:|#)", code):
                comment = []
                if not code.startswith("public:"):
                    self.close_group()
            elif not self.is_open:
                self.out += documentation(comment)
            ends = r"[;{}:,]$" if not self.is_open and "(" not in code else r"[;{}:]$"
            self.is_open = not re.search(ends, code) and not code.startswith("#")
            if code.endswith("{") or code.endswith(",") and not self.is_open:
                comment = []
            continued = False
            self.out.append(trailing(line))

def main():
    with open(sys.argv[1], encoding="utf-8") as header:
        text = Filter()
        for block in blocks(line.rstrip("\n") for line in header):
            text.block(block)
    print("\n".join(text.out))


if __name__ == "__main__":
    main()
