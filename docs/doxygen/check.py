#!/usr/bin/env python3
"""Checks that a site tells of every class and function that the library exports.

    check.py SITE EXPORTS

EXPORTS lists the exported symbols, SITE is what Doxygen made, with its XML. Each function must have
a text of its own and a page that exists.
"""

import pathlib
import re
import sys
import xml.etree.ElementTree as ET


def normal(signature):
    """One spelling for the declarations of headers and the symbols of binutils."""
    signature = re.sub(r"\bconst (char|\w+)\b(?=\s*[&*])", r"\1 const", signature)
    signature = signature.replace(", std::allocator<std::string >", "")
    return re.sub(r"\s+", "", signature)


def text_of(member):
    return "".join("".join(member.find(name).itertext())
                   for name in ("briefdescription", "detaileddescription")).strip()


def page_of(site, identifier):
    """A member is an anchor in a page, which is named before the last underscore."""
    page = site / "html" / (identifier.rpartition("_1")[0] + ".html")
    return page if page.exists() and identifier.rpartition("_1")[2] in page.read_text() else None


def documented(site):
    """The documented classes and functions, each with whether it has a page."""
    for file in sorted((site / "xml").glob("*.xml")):
        for compound in ET.parse(file).getroot().findall("compounddef"):
            kind, name = compound.get("kind"), compound.findtext("compoundname")
            if kind not in ("class", "file"):
                continue
            if kind == "class":
                page = site / "html" / (compound.get("id") + ".html")
                yield name, bool(text_of(compound)) and page.exists()
            for member in compound.iter("memberdef"):
                if member.get("kind") != "function":
                    continue
                scope = name + "::" if kind == "class" else ""
                types = ",".join("".join(each.find("type").itertext())
                                 for each in member.findall("param"))
                constant = " const" if member.get("const") == "yes" else ""
                yield (normal(f"{scope}{member.findtext('name')}({types}){constant}"),
                       bool(text_of(member)) and page_of(site, member.get("id")) is not None)


def exported(file):
    for line in file.read_text().splitlines():
        if line.startswith("typeinfo for "):
            yield line.removeprefix("typeinfo for ")
        elif "(" in line:
            yield normal(line)


def main():
    site, exports = (pathlib.Path(argument) for argument in sys.argv[1:])
    found = dict(documented(site))
    wanted = sorted(set(exported(exports)))
    missing = [name for name in wanted if not found.get(name)]
    for name in missing:
        print(f"{name}: " + ("has no text or no page" if name in found else "is not there"))
    print(f"{len(wanted) - len(missing)} of {len(wanted)} exported classes and functions have a page")
    return 1 if missing or not wanted else 0


if __name__ == "__main__":
    sys.exit(main())
