"""Prepares a page for Doxygen, and prints it: page_filter.py PAGE.md

The pages are written for repository browsers. There, a link leads to a file or to a heading. In the built
documentation, headings have identifiers of their own, and files that are not part of it are only named.
"""

import os
import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
MAIN_PAGE = ROOT / "README.md"
FENCE = re.compile(r"^(```.*?^```$)", re.MULTILINE | re.DOTALL)
HEADING = re.compile(r"^(#+) (.+)$", re.MULTILINE)
CODE = re.compile(r"(?<!`)`([^`]+)`(?!`)")
ANY_LINK = re.compile(r"\[([^\]]+)\]\(([^)\s]+)\)")
LINK = re.compile(r"(?<!!)" + ANY_LINK.pattern)


def is_page(path):
    folders = (ROOT, ROOT / "docs", ROOT / "config")
    return path.suffix == ".md" and path.parent in folders and path.is_file()


def page_identifier(page):
    if page == MAIN_PAGE:
        return "mainpage"
    return "page-" + page.relative_to(ROOT).with_suffix("").as_posix().replace("/", "-")


def anchor(heading):
    """What follows "#" in a link to a heading, as repository browsers form it."""
    return re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-")


def heading_identifier(page, fragment):
    return f"{page_identifier(page)}-{fragment}"


def with_identifier(page, heading):
    marks, text = heading.groups()
    text = text.replace("`", "")  # would be shown
    identifier = page_identifier(page) if marks == "#" else heading_identifier(page, anchor(text))
    return f"{marks} {text} {{#{identifier}}}"


def converted_link(page, link):
    text, target = " ".join(link[1].split()), link[2]
    if "://" in target:
        return link[0]
    name, _, fragment = target.partition("#")
    path = Path(os.path.normpath(page.parent / name)) if name else page
    if not is_page(path):
        return text
    return f"[{text}](@ref {heading_identifier(path, fragment) if fragment else page_identifier(path)})"


def converted_code(code):
    """With single backticks, an apostrophe would end the code."""
    return f"`{code[0]}`" if "'" in code[1] else code[0]


def prepared(page):
    parts = FENCE.split(page.read_text(encoding="utf-8"))
    # Every second part is a block of code.
    for index in range(0, len(parts), 2):
        text = HEADING.sub(lambda heading: with_identifier(page, heading), parts[index])
        text = LINK.sub(lambda link: converted_link(page, link), text)
        parts[index] = CODE.sub(converted_code, text)
    return "".join(parts)


if __name__ == "__main__":
    print(prepared(Path(sys.argv[1]).resolve()), end="")
