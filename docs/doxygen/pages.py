#!/usr/bin/env python3
"""Filter through which Doxygen reads the pages: pages.py PAGE

Gives each heading the name under which other places link to it, made unique by that of its page,
and leaves of a link to what is not on the site (folders, files of the sources) the text alone.
"""

import pathlib
import re
import sys


def anchor(page, title):
    plain = re.sub(r"[^\w\s-]", "", title.lower())
    return f"{page}-{re.sub(r'[ ]', '-', plain.strip())}"


def main():
    file = pathlib.Path(sys.argv[1])
    pages = {page.name for page in pathlib.Path("docs").glob("*.md")} | {"README.md", "CHANGELOG.md",
                                                                        "CONTRIBUTING.md"}
    page = file.stem

    def link(match):
        text, target = match[1], match[2]
        if target.startswith("#"):
            return f"[{text}](#{anchor(page, target[1:])})"
        name, _, part = target.rpartition("/")[2].partition("#")
        if name in pages and "examples/" not in target:
            return f"[{text}](#{anchor(name[:-3], part)})" if part else match[0]
        return match[0] if "://" in target else text

    in_code = False
    for number, line in enumerate(file.read_text(encoding="utf-8").splitlines()):
        if line.startswith("```"):
            in_code = not in_code
        elif not in_code and not line.startswith("    "):
            line = re.sub(r"\[([^\]]*)\]\(([^)\s]*)\)", link, line)
            if number > 0 and (heading := re.match(r"(#+) (.*)", line)):
                line = f"{heading[1]} {heading[2]} {{#{anchor(page, heading[2])}}}"
        print(line)


if __name__ == "__main__":
    main()
