"""The blocks of code of a Markdown page."""

import re
from dataclasses import dataclass, field
from pathlib import Path

FENCE = re.compile(r"^```(.*)\n((?:.*\n)*?)```$", re.MULTILINE)
FILE_NAME = re.compile(r"`([\w./-]+\.[a-z]+)`")
COMMAND = re.compile(r"^[$] ((?:.*\\\n)*.*)\n((?:(?![$] ).*\n)*)", re.MULTILINE)


@dataclass
class Command:
    text: str
    output: str
    line: int


@dataclass
class Block:
    """A block of commands, or the content of the file that the text before it names last."""

    page: Path
    line: int
    language: str
    content: str
    file: str = ""
    commands: list[Command] = field(default_factory=list)

    @property
    def place(self):
        return f"{self.page}:{self.line}"


def commands_of(content, first_line):
    # The demonstration prints commands of its own.
    if content.startswith("$ ./dev demo\n"):
        return [Command("./dev demo", content.partition("\n")[2], first_line)]
    return [
        Command(found[1], found[2], first_line + content.count("\n", 0, found.start()))
        for found in COMMAND.finditer(content)
    ]


def blocks_of(page, root):
    """Every block of the page, in order."""
    text = (root / page).read_text(encoding="utf-8")
    blocks = []
    end = 0
    for found in FENCE.finditer(text):
        line = text.count("\n", 0, found.start()) + 1
        block = Block(page, line, found[1], found[2])
        if block.language == "console":
            block.commands = commands_of(block.content, line + 1)
        else:
            names = FILE_NAME.findall(text[end : found.start()])
            block.file = names[-1].lstrip("/") if names else ""
        blocks.append(block)
        end = found.end()
    return blocks
