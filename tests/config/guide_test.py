"""The authors' guide, config/README.md, shows what the programs print for its documents.

The first argument is the program unitmanager. With UPDATE_RECORDS=1 in the environment, the guide is updated.
"""

import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile
import unittest

GUIDE = pathlib.Path(__file__).resolve().parents[2] / "config" / "README.md"
PROGRAMS = {"unitmanager": sys.argv.pop(1), "python3": sys.executable}
BLOCK = re.compile(r"^```(\w*)\n(.*?)^```$", re.DOTALL | re.MULTILINE)
FILE_NAME = re.compile(r"`([\w/-]+\.json)`")
COMMAND = re.compile(r"^\$ (.+)$", re.MULTILINE)


def output_of(command, folder):
    program, *arguments = shlex.split(command)
    result = subprocess.run([PROGRAMS[program], *arguments], cwd=folder, stdout=subprocess.PIPE, check=False)
    return result.stdout.decode("utf-8")


class GuideTest(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def test_outputs_are_those_of_the_programs(self):
        guide = GUIDE.read_text(encoding="utf-8")
        updated = ""
        end = 0
        documents = commands = 0
        for block in BLOCK.finditer(guide):
            text = guide[end : block.start()]
            content = block[2]
            if block[1] == "json":
                # The last file that the text names.
                self.write(FILE_NAME.findall(text)[-1], content)
                documents += 1
            else:
                content = self.run_commands(COMMAND.findall(content))
                commands += content.count("$ ")
                with self.subTest(content.splitlines()[0]):
                    self.assertEqual(content, block[2])
            updated += f"{text}```{block[1]}\n{content}```"
            end = block.end()
        self.assertEqual((documents, commands), (9, 12))
        if os.environ.get("UPDATE_RECORDS") == "1":
            GUIDE.write_text(updated + guide[end:], encoding="utf-8")

    def write(self, name, text):
        path = self.folder / name
        path.parent.mkdir(exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def run_commands(self, commands):
        """The commands with their outputs, as in the guide."""
        return "".join(f"$ {command}\n{output_of(command, self.folder)}" for command in commands)


if __name__ == "__main__":
    unittest.main()
