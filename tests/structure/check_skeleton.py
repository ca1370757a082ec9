"""The skeleton of a platform builds, and defines every operation that the library takes from a platform."""

import sys
from pathlib import Path

from project import Project, dynamic_symbols, finish, run

LIST = Path(__file__).parent / "data" / "platform-symbols.txt"
# A platform that does not promise that only a NaN is the marker omits this one.
OPTIONAL = {"ConfigurationAndProcessDataTools::getNanOnlyNoInputTest()"}


def main():
    project = Project(sys.argv[1])
    build = project.scratch / "skeleton"
    run([project.facts["cmake"], "--fresh", "-S", project.source / "examples" / "platform-skeleton", "-B", build,
         "-G", project.facts["generator"], *project.cmake_options(),
         f"-DCMAKE_CXX_COMPILER_LAUNCHER={project.facts['compilerLauncher']}",
         "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror"])
    run([project.facts["cmake"], "--build", build])

    libraries = sorted(build.glob("lib*.so"))
    defined = {name for library in libraries for _, name in dynamic_symbols(library, "--defined-only")}
    required = set(LIST.read_text(encoding="utf-8").splitlines()) - OPTIONAL
    problems = [f"not defined: {name}" for name in sorted(required - defined)]
    if len(libraries) != 6:
        problems.append(f"{len(libraries)} libraries instead of 6")
    finish(problems, f"{len(required)} symbols of {len(libraries)} libraries")


main()
