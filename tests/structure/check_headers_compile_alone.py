"""Every installed header compiles on its own, with warnings as errors, with both compilers."""

import os
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

from project import Project, finish

WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Wconversion", "-Wshadow", "-Werror"]


def compile_alone(compiler, header, flags):
    """The compiler's errors for a program that includes the header twice; empty if there are none."""
    command = [compiler, "-std=c++17", "-fPIC", *WARNINGS, *flags, "-fsyntax-only", "-x", "c++", "-"]
    source = f'#include "{header}"\n' * 2
    result = subprocess.run(command, input=source, capture_output=True, text=True, check=False)
    return "" if result.returncode == 0 else f"{compiler}: {header}\n{result.stderr}"


def main():
    project = Project(sys.argv[1])
    listed = sorted([*project.installed_headers, project.facts["exportHeader"]])
    root = project.include_dir / "unitmanager"
    seen = sorted(str(path.relative_to(root)) for path in root.rglob("*") if path.is_file())
    problems = []
    if seen != listed:
        problems.append(f"installed, but not listed: {sorted(set(seen) - set(listed))}")
        problems.append(f"listed, but not installed: {sorted(set(listed) - set(seen))}")

    flags = project.package_flags("--cflags")
    # CMake marks a program that it has not found; Clang is optional.
    compilers = [compiler for compiler in (project.facts["gcc"], project.facts["clang"])
                 if not compiler.endswith("-NOTFOUND")]
    jobs = [(compiler, header, flags) for header in seen for compiler in compilers]
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        problems += filter(None, pool.map(lambda job: compile_alone(*job), jobs))
    finish(problems, f"{len(seen)} headers, {len(listed)} listed, compiled by {len(compilers)} compilers")


main()
