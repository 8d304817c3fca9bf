#!/usr/bin/env python3
"""Writes the snippets in the comments of headers into one source, each in a namespace and a function of its own.

    extract.py <source to write> <header>...

A snippet is indented by five blanks and has a statement in it. Names that it uses come from names.h: from Window,
or from a class there that is called after its header.
"""

import pathlib
import re
import sys

BEGIN = re.compile(r"^\s*(?:\*|///) {5}(.*)$")
EMPTY = re.compile(r"^\s*(?:\*|///)\s*$")
LIST_ITEM = re.compile(r"^\s*(?:\*|///) +- ")
FUNCTION = re.compile(r"\A[\w:<>&* ]+ \w+\([^;{]*\)\s*\{", re.S)


def snippets(path):
    found, lines, in_list = [], [], False
    for line in pathlib.Path(path).read_text().split("\n") + [""]:
        inside = BEGIN.match(line)
        if LIST_ITEM.match(line):
            in_list = True
        elif EMPTY.match(line) or not inside:
            in_list = in_list and bool(inside)
        if inside and not in_list:
            lines.append(inside.group(1))
        elif lines and EMPTY.match(line):
            lines.append("")
        else:
            found.append("\n".join(lines).strip())
            lines = []
    return [text for text in found if re.search(r"[;}]\s*(//.*)?$", text, re.M)]


def main():
    target, headers = sys.argv[1], sys.argv[2:]
    names = (pathlib.Path(__file__).parent / "names.h").read_text()
    out = ["// Made from the comments of headers; do not edit.", '#include "names.h"', ""]
    for header in headers:
        include = header.split("/include/")[-1].removeprefix("include/")
        out.append(f"#include <{include}>")
    for header in headers:
        name = pathlib.Path(header).stem
        for number, text in enumerate(snippets(header)):
            text = re.sub(r"^\s*\.\.\.\s*$", "", text, flags=re.M)
            text = re.sub(r"\breturn;", "return {};", text)
            base = f"{name}Names" if re.search(rf"\b{name}Names\b", names) else "Window"
            out += ["", f"namespace snippet_{name}_{number} {{"]
            if FUNCTION.match(text):
                out += [text]
            else:
                out += [f"struct Here : {base}", "{", "    Anything shown();", "};", "Anything Here::shown()", "{", text,
                        "return {};", "}"]
            out.append("}")
    pathlib.Path(target).write_text("\n".join(out) + "\n")


if __name__ == "__main__":
    main()
