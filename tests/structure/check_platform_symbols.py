"""Compares the symbols that the library uses from the platform's own libraries with the list under version control.
Every replacement of the platform must provide them.

With `--update` as last argument, rewrites the list from the library of a build:

    python3 tests/structure/check_platform_symbols.py build/release/tests/structure/project.json --update

The list contains functions and variables, but no symbols that compilers generate for classes (virtual tables, type
information).
"""

import sys
from pathlib import Path

from project import SPECIAL_PREFIX, Project, differences, dynamic_symbols, finish

LIST = Path(__file__).parent / "data" / "platform-symbols.txt"


def names(library, kind):
    return {name for _, name in dynamic_symbols(library, kind) if not SPECIAL_PREFIX.match(name)}


def main():
    project = Project(sys.argv[1])
    platform = sorted(project.library_dir.glob("libDevicePlatform*.so"))
    offered = set().union(*(names(library, "--defined-only") for library in platform))
    taken = sorted(names(project.library, "--undefined-only") & offered)
    finish(differences(taken, LIST, "taken"), f"{len(taken)} symbols of {len(platform)} libraries")


main()
