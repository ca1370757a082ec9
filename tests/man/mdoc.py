"""Writes parts of manual pages in the macros of mdoc(7)."""

import re
import textwrap

SPECIAL = {"\\": r"\e", "'": r"\(aq", "`": r"\(ga", "^": r"\(ha", "~": r"\(ti"}
OPTION = re.compile(r"(?P<names>-[^<]*?)(?: <(?P<value>[^>]+)>)?$")


def escape(text):
    """The text with its characters unchanged; a minus stays one where a hyphen would be printed."""
    text = re.sub(r"[\\'`^~]", lambda found: SPECIAL[found[0]], text)
    return re.sub(r"(?<!\w)-+", lambda found: r"\-" * len(found[0]), text)


def prose(text):
    """A new line for every sentence; long ones are wrapped."""
    sentences = re.split(r"(?<=[.:]) (?=[A-Z])", escape(text))
    return [rf"\&{line}" if line.startswith(".") else line for sentence in sentences
            for line in textwrap.wrap(sentence, 79, break_long_words=False, break_on_hyphens=False)]


def listing(entries):
    lines = [".Bl -tag -width Ds"]
    for heading, body in entries:
        lines += [f".It {heading}", *body]
    return [*lines, ".El"] if entries else []


def option(name):
    """"-h, --help" as "Fl h , Fl -help"; "--units <FILE>" as "Fl -units Ar FILE"."""
    parts = OPTION.match(name)
    flags = " , ".join(f"Fl {flag.strip()[1:]}" for flag in parts["names"].split(","))
    return f"{flags} Ar {parts['value']}" if parts["value"] else flags


def argument(word):
    """"[TYPE]" as an optional argument, "FILE..." as a repeated one."""
    name = word.strip("[].")
    written = f"Fl {name[1:]}" if name.startswith("-") else f"Ar {name}"
    written += " ..." if word.endswith("...") else ""
    return f"Op {written}" if word.startswith("[") else written


def command(usage, prefix=".Nm"):
    """The lines of a synopsis."""
    program, *words = usage.split()
    lines = [f"{prefix} {program}"]
    if words and words[0].isalpha() and words[0].islower():
        lines.append(f".Cm {words.pop(0)}")
    return lines + [f".{argument(word)}" for word in words]


def paragraph(lines):
    """A paragraph; indented lines are shown as they are."""
    text = [line for line in lines if not line.startswith("  ")]
    literal = [escape(line[2:]) for line in lines if line.startswith("  ")]
    result = [".Pp", *prose(" ".join(text))]
    return [*result, ".Bd -literal -offset indent", *literal, ".Ed"] if literal else result
