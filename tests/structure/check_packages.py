"""Exactly the public headers are installed, and a program outside the tree builds and runs with the installed CMake
package and with pkg-config."""

import shutil
import sys
import tempfile
from pathlib import Path

from project import Project, finish, run

EXPECTED = "1.013 bar\n"


def build_with_cmake(project, folder):
    """Builds the program as a separate CMake project that uses the package."""
    run([project.facts["cmake"], "-S", folder, "-B", folder / "build", "-G", project.facts["generator"],
         *project.cmake_options(), "-DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF"])
    run([project.facts["cmake"], "--build", folder / "build"])
    return folder / "build" / "consumer"


def build_with_pkg_config(project, folder):
    """Builds the program with a single command, with a run path to the library."""
    program = folder / "consumer"
    run([project.facts["compiler"], "-std=c++17", folder / "main.cpp", "-o", program,
         *project.package_flags("--cflags", "--libs"), f"-Wl,-rpath,{project.library_dir}"])
    return program


def check_headers(project):
    """The differences between the headers that are installed and those that are listed."""
    listed = {*project.installed_headers, project.facts["exportHeader"]}
    root = project.include_dir / "unitmanager"
    seen = {str(path.relative_to(root)) for path in root.rglob("*") if path.is_file()}
    yield from (f"installed, but not listed: {name}" for name in sorted(seen - listed))
    yield from (f"listed, but not installed: {name}" for name in sorted(listed - seen))


def main():
    project = Project(sys.argv[1])
    problems = list(check_headers(project))
    builds = [build_with_cmake, build_with_pkg_config]
    for build in builds:
        with tempfile.TemporaryDirectory() as temporary:
            folder = Path(temporary) / "consumer"
            shutil.copytree(Path(__file__).parent / "consumer", folder)
            output = run([build(project, folder)])
        if output != EXPECTED:
            problems.append(f"{build.__name__}: prints {output!r} instead of {EXPECTED!r}")
    finish(problems, f"{len(builds)} programs print {EXPECTED!r}")


main()
