"""The progress line: on a terminal during long work, erased at its end, never among results or messages.

Argument: the program unitmanager.
"""

import contextlib
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

sys.path.append(str(pathlib.Path(__file__).resolve().parents[1] / "support"))

from terminal import Terminal  # noqa: E402 (needs the path above)

TOOL = sys.argv.pop(1)
# Qt would print a message about a fixed hash seed.
ENVIRONMENT = {name: value for name, value in os.environ.items() if name != "QT_HASH_SEED"}
CONVERT = [TOOL, "convert", "-", "Pressure", "HectoPascal", "Bar"]
CHECK = [TOOL, "check", "--units", "/dev/stdin"]
CONVERT_PROGRESS = re.compile(rb"\runitmanager: \d+ lines, \d+ s")
CHECK_PROGRESS = re.compile(rb"\runitmanager: checking, \d+ s")
DOCUMENT = b'{ "Flow": {} }\n'
FINDING = """/dev/stdin:1:3: error: unit type "Flow" has no units [type-empty]
  { "Flow": {} }
    ^
1 error, 0 warnings, 0 notes"""


def screen(output):
    """The lines that a terminal shows after the output, without blanks at their ends."""
    lines = [""]
    column = 0
    for character in output.decode("utf-8"):
        if character == "\r":
            column = 0
        elif character == "\n":
            lines.append("")
        else:
            lines[-1] = lines[-1].ljust(column)[:column] + character + lines[-1][column + 1:]
            column += 1
    return [line.rstrip() for line in lines]


class ProgressTest(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.results = pathlib.Path(folder.name) / "results"

    def start(self, command, **streams):
        """Starts the program on a terminal. Its input is a pipe."""
        terminal = Terminal(command, env=ENVIRONMENT, **{"stdin": subprocess.PIPE, **streams})
        self.addCleanup(terminal.close)
        self.addCleanup(terminal.process.stdin.close)
        return terminal

    def start_conversion(self, **streams):
        """Results go to a file."""
        with open(self.results, "wb") as results:
            return self.start(CONVERT, **{"stdout": results, **streams})

    def feed(self, terminal, text):
        terminal.process.stdin.write(text)
        terminal.process.stdin.flush()

    def feed_until(self, terminal, pattern):
        """Sends lines until the terminal shows the pattern. Returns their number."""
        count = 0

        def is_shown():
            nonlocal count
            self.feed(terminal, b"1000\n" * 100)
            count += 100
            return pattern.search(terminal.output)

        terminal.wait_until(is_shown)
        return count

    def end(self, terminal):
        terminal.process.stdin.close()
        return terminal.wait_for_end()

    def test_conversion_shows_and_erases_it(self):
        terminal = self.start_conversion()
        count = self.feed_until(terminal, CONVERT_PROGRESS)
        self.assertEqual(self.end(terminal), 0)
        self.assertEqual(screen(terminal.output), [""])
        self.assertEqual(self.results.read_text(encoding="utf-8"), "1.000 bar\n" * count)

    def test_messages_take_its_place(self):
        terminal = self.start_conversion()
        count = self.feed_until(terminal, CONVERT_PROGRESS)
        self.feed(terminal, b"five\n")
        terminal.wait_until(lambda: b"five" in terminal.output)
        self.assertEqual(self.end(terminal), 1)
        message = f'unitmanager: line {count + 1}: "five" is not a decimal number such as -1234.5 or 1e-3, within the ' \
                  "range of a double"
        self.assertEqual(screen(terminal.output), [message, ""])

    def test_check_shows_and_erases_it(self):
        terminal = self.start(CHECK)
        terminal.wait_until(lambda: CHECK_PROGRESS.search(terminal.output))
        self.feed(terminal, DOCUMENT)
        self.assertEqual(self.end(terminal), 1)
        shown = "\n".join(screen(re.sub(rb"\x1b\[[\d;]*m", b"", terminal.output)))
        self.assertEqual(shown, FINDING + "\n")

    def test_others_do_not_show_it(self):
        """Each of them runs for longer than one that shows the line."""
        with contextlib.ExitStack() as stack:
            results = stack.enter_context(open(self.results, "wb"))
            silent = {
                "results on the terminal": self.start(CONVERT),
                "results in a pipe": self.start(CONVERT, stdout=subprocess.PIPE),
                "errors in a pipe": self.start(CONVERT, stdout=results, stderr=subprocess.PIPE),
                "errors in a file": self.start(CONVERT, stdout=results, stderr=results),
                "findings in a pipe": self.start(CHECK, stdout=subprocess.PIPE),
                "errors of a check in a pipe": self.start(CHECK, stderr=subprocess.PIPE),
            }
            with open(self.results.with_suffix(".typed"), "wb") as typed_results:
                typed = Terminal(CONVERT, env=ENVIRONMENT, stdout=typed_results)
            self.addCleanup(typed.close)
            self.feed_until(self.start_conversion(), CONVERT_PROGRESS)
            slow = self.start(CHECK)
            slow.wait_until(lambda: CHECK_PROGRESS.search(slow.output))

            for name, terminal in silent.items():
                with self.subTest(name):
                    terminal.collect(0)
                    self.assertIsNone(terminal.process.poll())
                    self.assertEqual(terminal.output, b"")
                    output, errors = terminal.process.communicate(DOCUMENT)
                    self.assertNotIn(b"unitmanager: checking", (output or b"") + (errors or b""))
                    self.assertNotIn(b" lines, ", (output or b"") + (errors or b""))
            typed.collect(0)
            self.assertIsNone(typed.process.poll())
            self.assertEqual(typed.output, b"")
        self.assertNotIn(b" lines, ", self.results.read_bytes())


if __name__ == "__main__":
    unittest.main()
