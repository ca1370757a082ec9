"""Shared by the checks of this folder: the description of the build, written by CMake, and the end of a check."""

import json
import os
import re
import subprocess
import sys
from pathlib import Path


# Symbols that compilers generate for classes.
SPECIAL_PREFIX = re.compile(
    r"^(vtable|VTT|typeinfo|typeinfo name|guard variable|(non-virtual |virtual )?thunk) (for|to) ")


class Project:
    """The build under test, from the JSON file whose path is the check's first argument."""

    def __init__(self, description):
        with open(description, encoding="utf-8") as file:
            self.facts = json.load(file)
        self.source = Path(self.facts["sourceDir"])
        self.scratch = Path(self.facts["scratchDir"])
        self.prefix = Path(self.facts["installPrefix"])
        self.library_dir = self.prefix / self.facts["installLibDir"]
        self.include_dir = self.prefix / self.facts["installIncludeDir"]
        self.library = self.facts["library"]
        self.installed_headers = self.facts["installedHeaders"]
        self.platform_headers = self.facts["platformHeaders"]

    def package_flags(self, *options):
        """The flags from pkg-config for the installed library; includes of other packages become system includes."""
        environment = dict(os.environ, PKG_CONFIG_PATH=str(self.library_dir / "pkgconfig"))
        answer = run(["pkg-config", *options, "unitmanager"], env=environment)
        flags = []
        for flag in answer.split():
            path = Path(flag[2:]).resolve() if flag.startswith("-I") else None
            if path is None:
                flags.append(flag)
            elif path.is_relative_to(self.prefix.resolve()):
                flags.append(f"-I{path}")
            else:
                flags += ["-isystem", str(path)]
        return flags


def run(command, **options):
    """The standard output of a command; if it fails, ends the check and prints the command's output."""
    result = subprocess.run(command, capture_output=True, text=True, check=False, **options)
    if result.returncode != 0:
        sys.exit(f"{' '.join(map(str, command))}\nfailed with {result.returncode}\n{result.stdout}{result.stderr}")
    return result.stdout


def dynamic_symbols(library, kind):
    """(nm's letter, demangled name) of the symbols that a library defines ("--defined-only") or uses from others
    ("--undefined-only")."""
    return [(line[17], line[19:]) for line in run(["nm", "-D", "-C", kind, library]).splitlines()]


def differences(found, list_file, verb):
    """The differences between the symbols found and the list under version control. With `--update` as the check's last
    argument, rewrites the list first."""
    if "--update" in sys.argv[2:]:
        list_file.write_text("\n".join(found) + "\n", encoding="utf-8")
    listed = list_file.read_text(encoding="utf-8").splitlines()
    return ([f"listed, but not {verb}: {name}" for name in listed if name not in found] +
            [f"{verb}, but not listed: {name}" for name in found if name not in listed])


def finish(problems, summary):
    """Ends the check and prints each problem on a separate line, or what was checked if there are none."""
    if problems:
        sys.exit("\n".join([*problems, f"{len(problems)} problem(s)"]))
    print(summary)
