"""The page of the documents describes the members of the schema, and its example is valid.

Argument: the program unitmanager.
"""

import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

PROJECT = pathlib.Path(__file__).resolve().parents[2]
TOOL = sys.argv.pop(1)
# Qt would print a message about a fixed hash seed.
ENVIRONMENT = {name: value for name, value in os.environ.items() if name != "QT_HASH_SEED"}

PAGE = (PROJECT / "man" / "unitmanager-documents.5").read_text(encoding="utf-8")
EXAMPLE = re.compile(r"^\.Pa (\S+) :\n\.Bd -literal -offset indent\n(.*?)^\.Ed", re.DOTALL | re.MULTILINE)
MEMBERS = re.compile(r'^\.\\" begin members\n(.*)^\.\\" end members', re.DOTALL | re.MULTILINE)


def command_of_page():
    """The arguments of the command that checks the example."""
    written = re.search(r"^unitmanager (.*?)^\.Ed", PAGE, re.DOTALL | re.MULTILINE)[1]
    return written.replace("\\e\n", "").replace("\\-", "-").split()


class DocumentsTest(unittest.TestCase):
    def test_members_are_those_of_the_schema(self):
        schema = json.loads((PROJECT / "config" / "units.schema.json").read_text(encoding="utf-8"))
        described = re.findall(r"^\.It Li (\S+)$", MEMBERS.search(PAGE)[1], re.MULTILINE)
        self.assertEqual(described, list(schema["$defs"]["polynomialUnit"]["properties"]))

    def test_example_is_valid(self):
        with tempfile.TemporaryDirectory() as folder:
            names = []
            for name, text in EXAMPLE.findall(PAGE):
                (pathlib.Path(folder) / name).write_text(text, encoding="utf-8")
                names.append(name)
            self.assertEqual(names, ["units.json", "default-units.json", "dependencies.json"])
            command = command_of_page()
            self.assertEqual([word for word in command if word.endswith(".json")], names)
            result = subprocess.run([TOOL, *command], cwd=folder, env=ENVIRONMENT, capture_output=True, check=False,
                                    encoding="utf-8")
        self.assertEqual((result.stdout, result.stderr, result.returncode), ("no findings\n", "", 0))


if __name__ == "__main__":
    unittest.main()
