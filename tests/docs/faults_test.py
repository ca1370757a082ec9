"""The tests of this folder find what is wrong: python3 faults_test.py BUILD INSTALLED"""

import sys
import tempfile
import unittest
from pathlib import Path

from messages_test import Entry, message_texts
from pages_test import PageTest
from source_texts import statements

INSTALLED = Path(sys.argv.pop()).resolve()
BUILD = Path(sys.argv.pop()).resolve()

PAGES = {
    "a language that nobody knows": ("```ruby\nputs 1\n```\n", "unknown language 'ruby'"),
    "no language": ("```\n$ true\n```\n", "unknown language ''"),
    "an indented block": ("- text\n\n  ```console\n  $ true\n  ```\n", "a block is indented"),
    "a block of another kind": ("~~~\n$ true\n~~~\n", "not marked by"),
    "an output without a command": ("```console\n1013.3 hPa\n```\n", "does not begin with a command"),
    "another output": ("```console\n$ echo 1\n2\n```\n", "printed\n1\ninstead of\n2"),
    "more output": ("```console\n$ echo 1; echo 2\n1\n```\n", "printed\n1\n2\n"),
    "a failure": ("```console\n$ false\n```\n", "exit code 1"),
    "a failure after the right output": ("```console\n$ echo 1; false\n1\n```\n", "exit code 1"),
    "a verb that does not exist": ("```console\n$ unitmanager conwert 1 psi bar\n```\n", "unknown verb"),
    "a program that does not compile": ("`a.cpp`:\n\n```cpp\nint main() { x }\n```\n\n```console\n$ g++ a.cpp\n```\n",
                                        "not declared"),
    "a file that nothing uses": ("`a.cpp`:\n\n```cpp\nint main() {}\n```\n", "nothing on the page uses a.cpp"),
    "a file without a name": ("Text:\n\n```json\n{}\n```\n", "names no file"),
    "a word that ./dev does not have": ("```console\n$ ./dev bild\n```\n", "./dev has no word bild"),
    "a package that does not exist": ("```console\n$ sudo apt install ./unitmanger_*.deb\n```\n", "no package unitmanger"),
    "a folder that no program reads": ("```console\n$ sudo cp units.json /etc/unitmanger/\n```\n", "no program reads"),
    "a unit that does not exist": ("```console\n$ sudo systemctl start configuration-file-servic\n```\n", "unknown systemd unit"),
    "an option that no project reads": ("```console\n$ cmake -S UNITMANAGER -B build/library -DUNITMANAGER_BUILD=1\n```\n",
                                        "no project reads UNITMANAGER_BUILD"),
    "a script that does not exist": ("```console\n$ benchmarks/tabel.py\n```\n", "there is no program"),
    "a program of a target that does not exist": ("```console\n$ build/release/src/unitmanage\n```\n", "there is no program"),
    "a crash after the right output": ("```console\n$ unitmanager --version; exit 3\n…\n```\n", "exit code 3"),
    "an option that the service does not have":
        ("`a.conf`:\n\n```ini\n[Service]\nExecStart=/usr/bin/configuration-file-service --folder /a\n```\n",
         "no option --folder"),
}

SOURCES = {
    "a log message": 'void f() { LogContext{sourceName, 1, f}.warning() << "Broken" << 1; }',
    "a log message in two lines": 'void f() {\n    context.debug()\n        << "Very broken" << name; }',
    "a message of one word": 'Failure f() { return Failure{"broken"}; }',
    "a phrase in a function": 'QString f() { return QStringLiteral("cannot be read"); }',
    "a choice": 'QString f(bool a) { return a ? "is broken" : "is very broken"; }',
    "an adjacent literal": 'QString f() { return "is" " broken"; }',
    "a raw literal": 'QString f() { return R"(is broken)"; }',
}


class FaultsTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def test_pages(self):
        for fault, (text, problem) in PAGES.items():
            with self.subTest(fault):
                page = self.folder / "page.md"
                page.write_text(text, encoding="utf-8")
                test = PageTest(page, BUILD, INSTALLED)
                test.run()
                self.assertIn(problem, "\n".join(test.problems))

    def test_messages_without_entry(self):
        entries = [Entry(1, "`is well`"), Entry(2, "`Broken 1`")]
        for fault, source in SOURCES.items():
            with self.subTest(fault):
                (self.folder / "source.cpp").write_text(source, encoding="utf-8")
                found = [message_texts(statement, "") for statement in statements(Path("source.cpp"), self.folder)]
                self.assertEqual(len(found), 1)
                self.assertTrue(found[0])
                self.assertEqual(any(entry.has(found[0]) for entry in entries), fault == "a log message")

    def test_comments_are_not_messages(self):
        (self.folder / "source.cpp").write_text('// "is broken"\n/* "is broken" */\n#include "is broken"\nint a;\n')
        self.assertEqual(list(statements(Path("source.cpp"), self.folder)), [])


if __name__ == "__main__":
    unittest.main()
