"""The help of a program, as the parts that its manual page shows."""

import re
import subprocess
from dataclasses import dataclass, field

ENTRY = re.compile(r"^  (\S.*?)  +(\S.*)$")
VERB = re.compile(r"^ (\w+) +(\S.*)$", re.MULTILINE)
EXIT_CODES = re.compile(r"Exit codes: ([^.]*)\.")


@dataclass
class Help:
    """What `PROGRAM [VERB] --help` prints."""

    usage: str
    summary: str
    # Pairs of a name, such as "-h, --help" or "--units <FILE>", and its description.
    options: list = field(default_factory=list)
    arguments: list = field(default_factory=list)
    # The rest. Paragraphs are lists of lines.
    paragraphs: list = field(default_factory=list)


def output_of(*command):
    return subprocess.run(command, stdout=subprocess.PIPE, check=True, encoding="utf-8").stdout


def entries(lines):
    """The names and descriptions in two columns; a description may continue on further lines."""
    found = []
    for line in lines:
        entry = ENTRY.match(line)
        if entry:
            found.append((entry[1], entry[2]))
        else:
            name, description = found.pop()
            found.append((name, f"{description} {line.strip()}"))
    return found


def read(*command):
    blocks = [block.splitlines() for block in output_of(*command, "--help").rstrip("\n").split("\n\n")]
    (usage, *summary), *blocks = blocks
    result = Help(usage.removeprefix("Usage: "), " ".join(summary))
    for heading, *lines in blocks:
        if heading == "Options:":
            result.options = entries(lines)
        elif heading == "Arguments:":
            result.arguments = entries(lines)
        else:
            result.paragraphs.append([heading, *lines])
    return result


def verbs(program):
    """The names of the verbs, in the order of the program's help."""
    return [name for name, _ in VERB.findall(output_of(program, "--help"))]


def exit_codes(program):
    """The exit codes and their meanings, from the program's help."""
    text = " ".join(output_of(program, "--help").split())
    return [tuple(code.split(" ", 1)) for code in EXIT_CODES.search(text)[1].split("; ")]
