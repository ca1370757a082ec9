"""The texts of C++ sources that may be messages to somebody."""

import re
from dataclasses import dataclass
from pathlib import Path

TOKEN = re.compile(
    r"//[^\n]*|/\*.*?\*/"  # comments
    r"|^[ \t]*#[ \t]*include[^\n]*"
    r'|R"(?P<delimiter>\w*)\((?P<raw>.*?)\)(?P=delimiter)"'
    r'|"(?P<text>(?:[^"\\\n]|\\.)*)"'
    r"|'(?:[^'\\\n]|\\.)*'"
    r"|(?P<end>[;{}])|(?P<other>\w+|[^\w\s])|\s+",
    re.MULTILINE | re.DOTALL,
)
ESCAPES = {"n": "\n", "t": "\t", "0": "\0"}
# What prints, logs or reports a text.
REPORT = re.compile(
    r"\b(warning|debug|info|critical|fatal|q(Warning|Debug|Info|Critical|Fatal)|wrongUsage|Failure|fail(ed)?|printError|"
    r"printLine|printText|report|exitWith|write|sendErrorReply|tr|qsTr)\b \("
    r"|\bFailure \{"
)
WORDS = re.compile(r"[\w,;:.)\"] +[\w%(\"{\[]|^ +[A-Za-z]|[A-Za-z:] +$")
SIGNATURE = re.compile(r"\w+::\w+\(|^QString&\) $|^const$")


@dataclass
class Statement:
    """A statement that contains texts. Adjacent literals are one text."""

    file: Path
    line: int
    texts: list[str]
    code: str

    @property
    def place(self):
        return f"{self.file}:{self.line}"

    def reports(self):
        return REPORT.search(self.code) is not None


def unescaped(text):
    return re.sub(r"\\(.)", lambda escape: ESCAPES.get(escape[1], escape[1]), text, flags=re.DOTALL)


def statements(file, root):
    """Every statement of the file that contains at least one text."""
    source = (root / file).read_text(encoding="utf-8")
    texts, code, first = [], [], 0
    was_text = False
    for token in TOKEN.finditer(source):
        literal = token["text"] if token["raw"] is None else token["raw"]
        if literal is not None:
            first = first or source.count("\n", 0, token.start()) + 1
            if was_text:
                texts[-1] += unescaped(literal)
            else:
                texts.append(unescaped(literal))
            was_text = True
        elif token["other"]:
            code.append(token["other"])
            was_text = False
        elif token["end"] == "{" and code[-1:] not in ([")"], ["]"]):
            # Not a block: the list that initialises an object.
            code.append("{")
            was_text = False
        elif token["end"]:
            if texts:
                yield Statement(file, first, texts, " ".join(code))
            texts, code, first = [], [], 0
            was_text = False


def is_phrase(text):
    """Whether the text has several words, or ends where another one begins."""
    return WORDS.search(text) is not None and not SIGNATURE.search(text)
