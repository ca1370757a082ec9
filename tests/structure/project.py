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

# The address has as many digits as the processor needs, and is missing for a symbol of another library.
SYMBOL = re.compile(r"[0-9a-f]* +(\w) (.*)")


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
        self.sysroot = self.facts["sysroot"]

    def cmake_options(self):
        """Options of a nested build with the compiler of this one, which finds the installed packages."""
        options = [f"-DCMAKE_CXX_COMPILER={self.facts['compiler']}", f"-DCMAKE_PREFIX_PATH={self.prefix}"]
        if self.facts["toolchainFile"]:
            options += [f"-DCMAKE_TOOLCHAIN_FILE={self.facts['toolchainFile']}",
                        f"-DCMAKE_FIND_ROOT_PATH={self.prefix}"]
        return options

    def pkg_config(self, folder, *options):
        """The answer of pkg-config about the package that is described in a folder."""
        environment = dict(os.environ, PKG_CONFIG_PATH=str(folder))
        if self.sysroot:
            environment["PKG_CONFIG_LIBDIR"] = f"{self.sysroot}/usr/lib/{self.facts['architecture']}/pkgconfig"
        return run(["pkg-config", *options, "unitmanager"], env=environment)

    def package_flags(self, *options):
        """The flags from pkg-config for the installed library; includes of other packages become system includes."""
        flags = [f"--sysroot={self.sysroot}"] if self.sysroot else []
        for flag in self.pkg_config(self.library_dir / "pkgconfig", *options).split():
            path = Path(flag[2:]).resolve() if flag.startswith("-I") else None
            if path is None:
                flags.append(flag)
            elif path.is_relative_to(self.prefix.resolve()):
                flags.append(f"-I{path}")
            else:
                flags += ["-isystem", f"{self.sysroot}{path}"]
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
    lines = run(["nm", "-D", "-C", kind, library]).splitlines()
    return [SYMBOL.fullmatch(line).groups() for line in lines]


def differences(found, list_file, verb, expected=str):
    """The differences between the symbols found and the list under version control, whose text expected() turns into
    the expected one. With `--update` as the check's last argument, rewrites the list first."""
    if "--update" in sys.argv[2:]:
        list_file.write_text("\n".join(found) + "\n", encoding="utf-8")
    listed = expected(list_file.read_text(encoding="utf-8")).splitlines()
    return ([f"listed, but not {verb}: {name}" for name in listed if name not in found] +
            [f"{verb}, but not listed: {name}" for name in found if name not in listed])


def finish(problems, summary):
    """Ends the check and prints each problem on a separate line, or what was checked if there are none."""
    if problems:
        sys.exit("\n".join([*problems, f"{len(problems)} problem(s)"]))
    print(summary)
