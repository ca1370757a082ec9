"""What the library takes from the platform's own libraries, against the list under version control: it is what every
substitute has to offer.

With a last argument `--update` the list is written anew from the library of a build:

    python3 tests/structure/check_platform_symbols.py build/release/tests/structure/project.json --update

Listed are functions and variables. What compilers make of classes (virtual tables, type information) is left out.
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
