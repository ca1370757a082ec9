"""docs/troubleshooting.md has an entry for every message of the library, the service and the tool.

    python3 messages_test.py UNITMANAGER CONFIGURATION_FILE_SERVICE

The sources are searched for texts. A text is a message if it consists of several words, or if its statement logs or
reports something; see source_texts.py. What the programs print with --help is not a message. All texts of a statement must be
found in one entry, in the parts between its arguments. An entry that no statement has is out of date.
"""

import re
import subprocess
import sys
from pathlib import Path

from source_texts import is_phrase, statements

ROOT = Path(__file__).resolve().parents[2]
PAGE = ROOT / "docs/troubleshooting.md"
FOLDERS = ["src", "platform", "documents", "programs", "tools", "service", "qml"]
CODE = re.compile(r"(?<!`)`([^`]+)`(?!`)")
# Texts in such statements that nobody reads in a message.
OTHER_TEXTS = {
    "AVX2 and FMA": "name of a variant, for tests and benchmarks",
    '"\\/bfnrt': "the characters after a backslash",
    "Usage: ": "the beginning of the help",
    "%{appname}: %{if-warning}warning: %{endif}%{message}": "the form of the log",
    "least severity": "shown beside a word that a shell completes",
    "active document": "shown beside a word that a shell completes",
    "when to print colors": "shown beside a word that a shell completes",
    "device-bus ": "name of a connection",
    "device-bus-greeting ": "name of a connection",
}

used_texts = set()


def squeezed(text):
    return " ".join(text.split())


def parts(text):
    """The parts of a text between its arguments, without blanks at their ends."""
    pieces = [squeezed(piece) for piece in re.split(r"%\d", text)]
    return [piece for piece in pieces if re.search("[A-Za-z]", piece)]


class Entry:
    """A row of a table, or a paragraph, with the messages in it."""

    def __init__(self, line, text):
        self.line = line
        self.messages = [squeezed(message) for message in CODE.findall(text)]
        # Passed on as it is: without words of its own.
        self.is_used = not any(re.search("[a-z]", message.replace("warning", "")) for message in self.messages)

    def has(self, texts):
        return all(any(text in message for message in self.messages) for text in texts)


def entries():
    """The rows of the tables of messages, and the paragraphs about messages."""
    page = PAGE.read_text(encoding="utf-8")
    for section in re.finditer(r"^## (Messages|Reading|Findings).*\n((?:(?!## ).*\n)*)", page, re.MULTILINE):
        first = page.count("\n", 0, section.start(2)) + 1
        column = 1 if section[1] == "Findings" else 0
        for number, line in enumerate(section[2].splitlines(), first):
            if line.startswith("| `"):
                yield Entry(number, line.strip("| ").split(" | ")[column])
        for paragraph in re.finditer(r"^[A-Z][^|]*?\n\n", section[2], re.MULTILINE):
            yield Entry(0, paragraph[0])


def help_texts(tool, service):
    """Everything that the programs print about themselves."""
    outputs = [[service, "--help"], [tool, "--help"], [tool, "check", "--rules"]]
    verbs = re.findall(r"^ (\w+) ", subprocess.check_output([tool, "--help"], text=True), re.MULTILINE)
    outputs += [[tool, verb, "--help"] for verb in verbs]
    return squeezed(" ".join(subprocess.check_output(command, text=True) for command in outputs))


def is_pattern(text):
    """Whether the text is a regular expression."""
    return text.startswith("^") and text.endswith("$")


def is_help(statement, text, helps):
    """Whether the programs' help has the text. A short text may be there by chance, as may be that of a finding."""
    may_be_help = statement.file.name == "Rule.cpp" or statement.file.parts[0] in ("programs", "tools", "service")
    pattern = r".{0,20}".join(re.escape(squeezed(part)) for part in re.split(r" ?%\d ?", text))
    return may_be_help and (len(text) >= 17 or text.endswith(".")) and re.search(pattern, helps) is not None


def message_texts(statement, helps):
    """The parts of messages in a statement."""
    texts = statement.texts if statement.reports() else [text for text in statement.texts if is_phrase(text)]
    if "QMessageLogger" in statement.code:
        texts = texts[1:]  # the first one is the source
    found = []
    for text in texts:
        if text in OTHER_TEXTS:
            used_texts.add(text)
        elif not text.startswith("/") and not is_pattern(text) and not is_help(statement, text, helps):
            found += parts(text)
    return found


def messages(helps):
    """(statement, texts) for all messages of the sources."""
    for folder in FOLDERS:
        files = sorted(path for path in (ROOT / folder).rglob("*") if path.suffix in (".cpp", ".h"))
        for path in files:
            for statement in statements(path.relative_to(ROOT), ROOT):
                texts = message_texts(statement, helps)
                if texts:
                    yield statement, texts


def main():
    known = list(entries())
    problems = []
    count = 0
    for statement, texts in messages(help_texts(*sys.argv[1:3])):
        count += 1
        matching = [entry for entry in known if entry.has(texts)]
        if not matching:
            problems.append(f"{statement.place}: no entry in {PAGE.name} for {texts}")
        for entry in matching:
            entry.is_used = True
    problems += [f"OTHER_TEXTS: no source has {text!r}" for text in OTHER_TEXTS if text not in used_texts]
    problems += [f"{PAGE.name}:{entry.line}: no source has {entry.messages}"
                 for entry in known if entry.line and not entry.is_used]
    print(f"{count} statements with messages, {len(known)} entries")
    print("\n".join(problems))
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
