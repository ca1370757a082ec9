"""Every relative link and picture of the pages leads to a file, and to a heading of it if it names one."""

import os
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "docs"))
import page_filter  # noqa: E402, the module of the documentation


def text_of(page):
    """The page without its blocks of code."""
    return "".join(page_filter.FENCE.split(page.read_text(encoding="utf-8"))[::2])


def anchors_of(page):
    return {page_filter.anchor(heading[2]) for heading in page_filter.HEADING.finditer(text_of(page))}


def problem_of(page, target):
    name, _, fragment = target.partition("#")
    path = Path(os.path.normpath(page.parent / name)) if name else page
    if not path.exists():
        return f"{name} does not exist"
    if fragment and fragment not in anchors_of(path):
        return f"{name} has no heading #{fragment}"
    return None


def main():
    pages = [*ROOT.glob("*.md"), *(ROOT / "docs").glob("*.md"), ROOT / "config/README.md"]
    count = 0
    problems = []
    for page in sorted(pages):
        for link in page_filter.ANY_LINK.finditer(text_of(page)):
            if "://" in link[2]:
                continue
            count += 1
            problem = problem_of(page, link[2])
            if problem:
                problems.append(f"{page.relative_to(ROOT)}: {link[0]}: {problem}")
    print(f"{len(pages)} pages, {count} links")
    print("\n".join(problems))
    return 1 if problems or not count else 0


if __name__ == "__main__":
    sys.exit(main())
