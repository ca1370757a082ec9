"""The manual pages say what the programs' help says, and name the environment variables that are read.

Arguments: the program unitmanager, the program configuration-file-service. With UPDATE_RECORDS=1 in the environment,
the parts of the pages that come from the help are updated.
"""

import os
import pathlib
import re
import sys
import unittest
from collections import Counter

import help_text
import mdoc

PROJECT = pathlib.Path(__file__).resolve().parents[2]
TOOL, SERVICE = sys.argv[1:]
del sys.argv[1:]

PART = re.compile(r'^\.\\" begin (\w+)\n(.*?)^\.\\" end \1\n', re.DOTALL | re.MULTILINE)
VARIABLE = re.compile(r'"([A-Z]+(?:_[A-Z]+)+)"')
# Read by Qt, not by the programs themselves.
BUS_ADDRESSES = {"DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS", "XDG_RUNTIME_DIR"}


def page(name):
    return PROJECT / "man" / name


class Verbs:
    """The help of all verbs. What several of them have in common is described once."""

    def __init__(self):
        self.helps = {name: help_text.read(TOOL, name) for name in help_text.verbs(TOOL)}
        self.options = self.users_of(lambda verb: verb.options)
        self.paragraphs = self.users_of(lambda verb: map(tuple, verb.paragraphs))

    def users_of(self, parts):
        """Each part -> the verbs that have it."""
        users = {}
        for name, verb in self.helps.items():
            for part in parts(verb):
                users.setdefault(part, []).append(name)
        return users

    def synopsis(self):
        return [line for verb in self.helps.values() for line in mdoc.command(verb.usage)]

    def descriptions(self):
        return [line for name in self.helps for line in self.description(name)]

    def description(self, name):
        verb = self.helps[name]
        lines = [f".Ss {name}", *mdoc.prose(verb.summary)]
        lines += mdoc.listing([(f"Ar {name}", mdoc.prose(text)) for name, text in verb.arguments])
        lines += mdoc.listing([(mdoc.option(option[0]), mdoc.prose(option[1]))
                               for option in verb.options if self.options[option] == [name]])
        for text in verb.paragraphs:
            if self.paragraphs[tuple(text)] == [name]:
                lines += mdoc.paragraph(text)
        shared = [mdoc.option(option[0]) for option in verb.options if 1 < len(self.options[option]) < len(self.helps)]
        sections = [".Sx OPTIONS"] if shared else []
        if any(len(self.paragraphs[tuple(text)]) > 1 for text in verb.paragraphs):
            sections.append(".Sx VALUES AND UNITS")
        if sections:
            lines += [".Pp", "See also"]
            lines += [f"{section}{' .' if section == sections[-1] else ''}" if index == 0 else f"and\n{section} ."
                      for index, section in enumerate(sections)]
        return "\n".join(lines).split("\n")

    def shared_options(self):
        entries = []
        for option, users in self.options.items():
            if len(users) > 1:
                entries.append((mdoc.option(option[0]), [*mdoc.prose(option[1]), *self.named(users)]))
        return mdoc.listing(entries)

    def shared_paragraphs(self):
        lines = []
        for text, users in self.paragraphs.items():
            if len(users) > 1:
                lines += [*mdoc.paragraph(list(text)), *self.named(users)]
        return lines

    def named(self, users):
        if len(users) == len(self.helps):
            return []
        separated = [f".Cm {user} ," for user in users[:-2]] + [f".Cm {users[-2]}", f"and\n.Cm {users[-1]} ."]
        return ["Verbs:", *"\n".join(separated).split("\n")]


def parts_of_tool():
    verbs = Verbs()
    return {
        "synopsis": [*verbs.synopsis(), ".Nm", ".Fl -help", ".Nm", ".Fl -version"],
        "verbs": verbs.descriptions(),
        "options": verbs.shared_options(),
        "values": verbs.shared_paragraphs(),
        "exits": mdoc.listing([(code, mdoc.prose(text + ".")) for code, text in help_text.exit_codes(TOOL)]),
    }


def parts_of_service():
    help_of_service = help_text.read(SERVICE)
    return {
        "synopsis": mdoc.command(help_of_service.usage),
        "description": [".Nm", *mdoc.prose(help_of_service.summary[0].lower() + help_of_service.summary[1:])],
        "options": mdoc.listing([(mdoc.option(name), mdoc.prose(text)) for name, text in help_of_service.options]),
    }


def exit_codes():
    """The numbers of all exit codes."""
    text = (PROJECT / "programs" / "ExitCode.h").read_text(encoding="utf-8")
    return sorted(set(re.findall(r"^ +\w+ = (\d+),?$", text, re.MULTILINE)))


def section(name, heading):
    """The lines of a page's section."""
    return page(name).read_text(encoding="utf-8").partition(f".Sh {heading}\n")[2].partition("\n.Sh ")[0]


def variables_of(*folders):
    """The environment variables that are named in the sources."""
    sources = [path for folder in folders for path in (PROJECT / folder).rglob("*.cpp")]
    return {name for path in sources for name in VARIABLE.findall(path.read_text(encoding="utf-8"))}


class PagesTest(unittest.TestCase):
    maxDiff = None

    def compare(self, name, expected):
        """Compares the parts of a page with those from the help."""
        text = page(name).read_text(encoding="utf-8")
        parts = dict(PART.findall(text))
        if os.environ.get("UPDATE_RECORDS") == "1":
            for part, lines in expected.items():
                text = text.replace(f'begin {part}\n{parts[part]}', f'begin {part}\n' + "\n".join(lines) + "\n")
            page(name).write_text(text, encoding="utf-8")
        self.assertEqual(parts.keys(), expected.keys())
        for part, lines in expected.items():
            with self.subTest(part):
                self.assertEqual(parts[part].splitlines(), lines)

    def test_page_of_the_tool_is_its_help(self):
        self.compare("unitmanager.1", parts_of_tool())

    def test_page_of_the_service_is_its_help(self):
        self.compare("configuration-file-service.8", parts_of_service())

    def test_environment_is_what_is_read(self):
        read = {
            "unitmanager.1": variables_of("tools", "programs", "platform"),
            "configuration-file-service.8": variables_of("service", "programs") | BUS_ADDRESSES,
        }
        for name, variables in read.items():
            with self.subTest(name):
                described = re.findall(r"^\.It Ev (\w+)$", section(name, "ENVIRONMENT"), re.MULTILINE)
                self.assertEqual(Counter(described), Counter(variables))

    def test_exit_status_has_every_code(self):
        self.assertEqual(exit_codes(), ["0", "1", "2"])
        for name in ("unitmanager.1", "configuration-file-service.8"):
            with self.subTest(name):
                described = re.findall(r"^\.It (\d+)$", section(name, "EXIT STATUS"), re.MULTILINE)
                self.assertEqual(described, exit_codes())


if __name__ == "__main__":
    unittest.main()
