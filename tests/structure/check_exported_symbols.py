"""Compares the library's own exported symbols with the list under version control.

With `--update` as last argument, rewrites the list from the library of a build:

    python3 tests/structure/check_exported_symbols.py build/release/tests/structure/project.json --update

The list contains functions, virtual tables, type information and the factories' registries. Weak functions (inline
functions, template instances) depend on compiler and build type: they are not listed, but must belong to an exported
class, to Qt or to the standard library. The list is that of x86-64, where size_t is unsigned long.
"""

import re
import sys
from pathlib import Path

from project import SPECIAL_PREFIX, Project, differences, dynamic_symbols, finish

LIST = Path(__file__).parent / "data" / "exported-symbols.txt"
# Strong on ARM, weak elsewhere.
FACTORY_TYPE = re.compile(r"typeinfo( name)? for VESKFactories::")
LISTED_WEAK = re.compile(r"(vtable|typeinfo|typeinfo name) for (?!VESKFactories::)|"
                         r"VESKFactories::Factory<.*>::instance\(\)::factory$")
COVERAGE_COUNTER = re.compile(r"__gcov_|mangle_path$")
QT_OR_STANDARD = re.compile(r"^(\w+ )?(std::|__gnu_cxx::|Q[A-Za-z]+(::|<))")


def exported_symbols(library):
    """(is weak or unique, demangled name) of every symbol that can be linked to."""
    return {(letter in "VWuvw" or FACTORY_TYPE.match(name) is not None, name)
            for letter, name in dynamic_symbols(library, "--defined-only") if not COVERAGE_COUNTER.match(name)}


def is_listed(weak, name, own):
    return not weak or (LISTED_WEAK.match(name) is not None and own.match(SPECIAL_PREFIX.sub("", name)) is not None)


def main():
    project = Project(sys.argv[1])
    symbols = exported_symbols(project.library)
    classes = sorted(Path(header).stem for header in project.installed_headers)
    own = re.compile(rf"({'|'.join(classes)}|VESKFactories)(::|$)")
    listed = sorted({name for weak, name in symbols if is_listed(weak, name, own)})
    size_type = "unsigned long" if project.facts["pointerSize"] == 8 else "unsigned int"
    problems = differences(listed, LIST, "exported", lambda text: text.replace("unsigned long", size_type))
    for weak, name in sorted(symbols):
        scope = SPECIAL_PREFIX.sub("", name)
        if not own.match(scope) and not (weak and QT_OR_STANDARD.match(scope)):
            problems.append(f"exported, but of no exported class: {name}")
    finish(problems, f"{len(listed)} symbols listed, {len(symbols)} exported in all")


main()
