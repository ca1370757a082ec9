"""Everything that the pages show is true: their files compile, their commands run, and print what the page shows.

    python3 pages_test.py BUILD INSTALLED [PAGE...]

BUILD is the build folder, INSTALLED the prefix of an installation of it. The blocks of a page are used in order, in one folder, see blocks_of().
Blocks of files are written there: a file that is shown once exists from the start, one that is shown several times
changes on the way. "…" in an output matches any text. Commands that cannot be run are listed.
With UPDATE_RECORDS=1 in the environment, the pages receive the outputs of their commands.
"""

import configparser
import os
import re
import shlex
import subprocess
import sys
import tempfile
from collections import Counter
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from not_run import NotRun
from page import blocks_of
from session import Session

ROOT = Path(__file__).resolve().parents[2]
FENCES = re.compile(r"^\s*(?:>\s*)?(?:```|~~~)", re.MULTILINE)
FILE_LANGUAGES = {"cmake", "cpp", "ini", "json", "qml", "xml"}
# Selects another default unit of pressure while a program runs.
PREFER = r"""run sed -i 's/\("Pressure".*"@value": "\)[^"]*/\1%s/' documents/default-units.json"""
# How a person uses the programs with a window; see WindowDriver.cpp.
WINDOWS = {
    "build/widgets": ["text 1013.3 hPa", "choose 0", "text 1.013 bar", PREFER % "MilliBar", "text 1013.3 mbar"],
    "build/quick": ["text 1013,3 mbar", "choose 0", "text 1,013 bar", "type 0,9505", "text 0,951 bar", "type 0.95",
                    'text The decimal separator is ",": write 0,95.', PREFER % "KiloPascal", "text 95,05 kPa"],
}
# Ends with 1 if there are findings or differences.
MAY_FAIL = ("unitmanager check ", "unitmanager diff ")
UPDATE = os.environ.get("UPDATE_RECORDS") == "1"


def all_pages():
    pages = [ROOT / "README.md", *sorted((ROOT / "docs").glob("*.md")), ROOT / "config/README.md"]
    return [page.relative_to(ROOT) for page in pages]


def environment_of(installed):
    libraries = next(installed.glob("**/libunitmanager.so")).parent
    return {
        "PATH": f"{installed / 'bin'}:{os.environ['PATH']}",
        "LD_LIBRARY_PATH": str(libraries),
        "PKG_CONFIG_PATH": str(libraries / "pkgconfig"),
        "CMAKE_PREFIX_PATH": str(installed),
        "CMAKE_GENERATOR": "Ninja",
        "QML2_IMPORT_PATH": str(libraries / "qt5/qml"),
        "QT_QPA_PLATFORM": "offscreen",
        "QT_QUICK_BACKEND": "software",
        "LC_ALL": "C.UTF-8",
    }


def matches(expected, actual):
    """Whether the output is the expected one, where "…" matches any lines, or for a part of a line."""
    lines = expected.splitlines(keepends=True)
    pattern = "".join("(.*\n)*?" if line == "…\n" else re.escape(line).replace("…", ".*") for line in lines)
    return re.fullmatch(pattern, actual) is not None


class PageTest:
    """The blocks of one page."""

    def __init__(self, page, build, installed):
        self.page = page
        # The demonstration of a build that exists already.
        self.substitutes = {"./dev demo": f"{ROOT / 'examples/demo.sh'} {build}"}
        for program, steps in WINDOWS.items():
            script = shlex.quote("\n".join(steps))
            variables = f"LD_PRELOAD={build}/tests/docs/libWindowDriver.so WINDOW_STEPS={script}"
            self.substitutes[program] = f"{variables} {program}"
        self.blocks = blocks_of(page, ROOT)
        self.not_run = NotRun(ROOT, installed)
        self.environment = environment_of(installed)
        self.problems = []
        self.lines = []
        self.results = Counter()

    def run(self):
        """Does what the blocks show. The lines tell what was done with each."""
        self.check_blocks()
        if not self.problems and self.blocks:
            with tempfile.TemporaryDirectory() as name:
                self.use_blocks(Path(name).resolve())
        self.check_files_are_used()

    def check_blocks(self):
        fences = FENCES.findall((ROOT / self.page).read_text(encoding="utf-8"))
        if len(fences) != 2 * len(self.blocks):
            self.fail(self.page, "a block is indented, not closed, or not marked by ```")
        for block in self.blocks:
            commands = "".join(f"$ {command.text}\n{command.output}" for command in block.commands)
            if block.language == "console" and commands != block.content:
                self.fail(block.place, "the block does not begin with a command")
            elif block.language != "console" and block.language not in FILE_LANGUAGES:
                self.fail(block.place, f"unknown language {block.language!r}")

    def fail(self, place, problem):
        self.problems.append(f"{place}: {problem}")
        self.lines.append(f"{place}: FAILED: {problem}")

    def report(self, place, result, detail):
        self.results[result] += 1
        self.lines.append(f"{place}: {result}: {detail}")

    def use_blocks(self, folder):
        counts = Counter(block.file for block in self.blocks)
        for block in self.blocks:
            if block.file and counts[block.file] == 1:
                self.write(folder, block)
        session = Session(folder, self.environment)
        try:
            for block in self.blocks:
                if block.language != "console":
                    self.use_file(folder, block)
                for command in block.commands:
                    self.use_command(session, block, command)
        finally:
            session.close()

    def write(self, folder, block):
        path = folder / block.file
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(block.content, encoding="utf-8")

    def use_file(self, folder, block):
        if not block.file:
            self.fail(block.place, "the text before the block names no file")
            return
        self.write(folder, block)
        self.report(block.place, "written", block.file)
        if block.language == "ini":
            self.check_settings(block)

    def check_settings(self, block):
        settings = configparser.ConfigParser(strict=False, interpolation=None)
        settings.read_string(block.content)
        command = settings.get("Service", "ExecStart", fallback="")
        service = (ROOT / "service/system/configuration-file-service.service.in").read_text(encoding="utf-8")
        usage = subprocess.run(["configuration-file-service", "--help"], env={**os.environ, **self.environment},
                               stdout=subprocess.PIPE, check=True, text=True).stdout
        for option in re.findall(r"--[\w-]+", command):
            if option not in re.findall(r"--[\w-]+", usage):
                self.fail(block.place, f"the service has no option {option}")
        if f"[{settings.sections()[0]}]" not in service:
            self.fail(block.place, f"unknown section {settings.sections()[0]}")

    def use_command(self, session, block, command):
        place = f"{self.page}:{command.line}"
        text = command.text.replace("\\\n", " ")
        try:
            reason = self.not_run.reason(text)
        except Exception as problem:  # any fault of a command fails the test
            self.fail(place, f"$ {command.text}: {problem}")
            return
        if reason and text not in self.substitutes:
            self.report(place, "not run", f"$ {command.text} ({reason})")
            return
        exit_code, output = session.run(self.substitutes.get(text, text), command.output.count("\n"))
        if output and not output.endswith("\n"):
            output += "\n"
        if UPDATE and command.output and "…" not in command.output:
            command.output = output
        if command.output and not matches(command.output, output):
            self.fail(place, f"$ {command.text}\nprinted\n{output}instead of\n{command.output}")
        elif exit_code != 0 and not (exit_code == 1 and command.output and text.startswith(MAY_FAIL)):
            self.fail(place, f"$ {command.text}\nended with exit code {exit_code}\n{output}")
        else:
            self.report(place, "ran", f"$ {command.text}")

    def check_files_are_used(self):
        for block in self.blocks:
            users = [command.text for other in self.blocks for command in other.commands]
            users += [other.content for other in self.blocks if other.file and other.file != block.file]
            stem = re.escape(Path(block.file).stem)
            if block.language in ("cpp", "qml", "json") and not re.search(rf"\b{stem}\b", "\n".join(users)):
                self.fail(block.place, f"nothing on the page uses {block.file}")

    def update(self):
        text = (ROOT / self.page).read_text(encoding="utf-8")
        for block in self.blocks:
            content = "".join(f"$ {command.text}\n{command.output}" for command in block.commands)
            if content:
                text = text.replace(f"```console\n{block.content}```", f"```console\n{content}```", 1)
        (ROOT / self.page).write_text(text, encoding="utf-8")


def main():
    build, installed = (Path(name).resolve() for name in sys.argv[1:3])
    tests = [PageTest(page, build, installed) for page in [Path(name) for name in sys.argv[3:]] or all_pages()]
    # Each has a folder and a bus of its own.
    with ThreadPoolExecutor(os.cpu_count()) as executor:
        list(executor.map(PageTest.run, tests))
    problems = []
    results = Counter()
    for test in tests:
        if UPDATE:
            test.update()
        print("\n".join(test.lines))
        problems += test.problems
        results += test.results
    print(", ".join(f"{result}: {count}" for result, count in sorted(results.items())))
    print("\n".join(problems))
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
