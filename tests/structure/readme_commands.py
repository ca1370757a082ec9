"""Follows the README as a newcomer does: writes the program and the CMake project of its section "Use it", runs the
commands of that section literally, and compares their output.

    python3 readme_commands.py README.md

The libraries are found where the environment says. A block of commands is marked `console`: lines that begin with
`$ ` are commands, the lines below are their standard output.
"""

import re
import subprocess
import sys
import tempfile
from pathlib import Path

BLOCK = re.compile(r"^```(\w+)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
COMMAND = re.compile(r"^\$ (.*)\n((?:(?!\$ ).*\n)*)", re.MULTILINE)


def blocks_of(readme):
    """(language, text) of every marked block in the section."""
    section = readme.partition("\n## Use it\n")[2].partition("\n## ")[0]
    return BLOCK.findall(section)


def only(blocks, language, mark):
    """The text of the block of a language that contains the mark."""
    found = [text for kind, text in blocks if kind == language and mark in text]
    if len(found) != 1:
        sys.exit(f"{len(found)} blocks of {language} with {mark!r} instead of 1")
    return found[0]


def main():
    blocks = blocks_of(Path(sys.argv[1]).read_text(encoding="utf-8"))
    commands = [command for kind, text in blocks if kind == "console" for command in COMMAND.findall(text)]
    for needed in ["pkg-config --cflags --libs", "cmake --build", "./app"]:
        if not any(needed in command for command, _ in commands):
            sys.exit(f"no command contains {needed!r}")
    with tempfile.TemporaryDirectory() as temporary:
        folder = Path(temporary)
        (folder / "app.cpp").write_text(only(blocks, "cpp", "int main("), encoding="utf-8")
        (folder / "CMakeLists.txt").write_text(only(blocks, "cmake", "find_package"), encoding="utf-8")
        for command, expected in commands:
            # The program logs its results, as Qt's applications do.
            result = subprocess.run(["bash", "-c", command], cwd=folder, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                    text=True, check=False)
            if result.returncode != 0 or (expected and result.stdout != expected):
                sys.exit(f"$ {command}\n{result.stdout}ended with {result.returncode}; expected:\n{expected}")
            print(f"$ {command}\n{expected}", end="")


main()
