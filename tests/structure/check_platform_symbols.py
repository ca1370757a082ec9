"""What the library takes from the platform's own libraries, against the list under version control: it is what every
substitute has to offer.

With a last argument `--update` the list is written anew from the library of a build:

    python3 tests/structure/check_platform_symbols.py build/release/tests/structure/project.json --update

Listed are functions and variables. What compilers make of classes (virtual tables, type information) is left out.
"""

import re
import sys
from pathlib import Path

from project import Project, finish, run

LIST = Path(__file__).parent / "data" / "platform-symbols.txt"
MADE_BY_COMPILERS = re.compile(r"^(vtable|VTT|typeinfo|typeinfo name|(non-virtual |virtual )?thunk) (for|to) ")


def symbols(library, kind):
    """Demangled names of the dynamic symbols that a library defines, or that it takes from others."""
    lines = run(["nm", "-D", "-C", kind, library]).splitlines()
    return {line[19:] for line in lines}


def main():
    project = Project(sys.argv[1])
    platform = sorted(project.library_dir.glob("libDevicePlatform*.so"))
    offered = set().union(*(symbols(library, "--defined-only") for library in platform))
    taken = sorted(name for name in symbols(project.library, "--undefined-only") & offered
                   if not MADE_BY_COMPILERS.match(name))
    if "--update" in sys.argv[2:]:
        LIST.write_text("\n".join(taken) + "\n", encoding="utf-8")

    expected = LIST.read_text(encoding="utf-8").splitlines()
    problems = [f"listed, but not taken: {name}" for name in expected if name not in taken]
    problems += [f"taken, but not listed: {name}" for name in taken if name not in expected]
    finish(problems, f"{len(taken)} symbols of {len(platform)} libraries")


main()
