"""Tab completes the command lines of unitmanager in an interactive shell.

Arguments: bash or zsh, the program unitmanager, its documents, and the command that installs the completion.
"""

import itertools
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

import shells

sys.path.append(str(pathlib.Path(__file__).resolve().parents[1] / "man"))

import help_text  # noqa: E402 (needs the path above)

SHELL = {"bash": shells.Bash, "zsh": shells.Zsh}[sys.argv[1]]
TOOL, DOCUMENTS, *INSTALL = sys.argv[2:]
del sys.argv[1:]

# The last one is that of the caller.
LOCALES = [{"LC_ALL": "C"}, {"LC_ALL": "C.UTF-8"}, {}]

# Typed before Tab -> the words of the line.
COMPLETED = {
    "conv": ["convert"],
    "--vers": ["--version"],
    "convert 1 Press": ["convert", "1", "Pressure"],
    "convert -1 Press": ["convert", "-1", "Pressure"],
    "convert 1 Pressure HectoP": ["convert", "1", "Pressure", "HectoPascal"],
    "convert 1 HectoP": ["convert", "1", "HectoPascal"],
    "convert 1 psi inHg inH": ["convert", "1", "psi", "inHg", "inH"],
    "label Pressure/HectoP": ["label", "Pressure/HectoPascal"],
    "units Press": ["units", "Pressure"],
    "convert 1 kgf": ["convert", "1", "kgf/cm²"],
    "convert 1 lb/": ["convert", "1", "lb/10⁶ ft³"],
    r"label RelativeHumidity %\ r": ["label", "RelativeHumidity", "% r.F."],
    "label RelativeHumidity '% r": ["label", "RelativeHumidity", "% r.F."],
    'label RelativeHumidity "% r': ["label", "RelativeHumidity", "% r.F."],
    'label "RelativeHumidity" "% r': ["label", "RelativeHumidity", "% r.F."],
    "check --sev": ["check", "--severity"],
    "check --severity w": ["check", "--severity", "warning"],
    "check --severity=w": ["check", "--severity=warning"],
    "check --languages en,d": ["check", "--languages", "en,de"],
    "label --language f": ["label", "--language", "fr"],
    "get --state dep": ["get", "--state", "dependencies"],
    "watch --bus se": ["watch", "--bus", "session"],
    "diff o": ["diff", "odd °.json"],
    "check --units o": ["check", "--units", "odd °.json"],
    "check --units=o": ["check", "--units=odd °.json"],
    "label -- Press": ["label", "--", "Pressure"],
    "units Pressure Press": ["units", "Pressure", "Press"],
    "unknown Press": ["unknown", "Press"],
    # Errors of the program stay silent.
    "convert 1 --units missing.json P": ["convert", "1", "--units", "missing.json", "P"],
    "convert 1 --bus unix:path=/missing P": ["convert", "1", "--bus", "unix:path=/missing", "P"],
}

# Labels with characters that shells interpret; each begins with another letter.
ODD_LABELS = ["a'b", 'b"c', "c$HOME", "d\\e", "e;f", "f:g=h", "g*", "h  i", "i!j", "k`l`", "m(n)", "o&p|q", "r{s,t}", "u#~",
              "v<w>", "x[y]", "z^?"]


def unit(position, label):
    return {"@displayPosition": position, "DecimalPlaces": 1, "Polynomial": [[0], [1]], "InversePolynomial": [[0], [1]],
            "UnitLabel": {"@value": {"en": label}}}


def odd_document():
    return json.dumps({"Odd": {f"Unit{index}": unit(index, label) for index, label in enumerate(ODD_LABELS)}})


class CompletionTest(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.prefix = pathlib.Path(folder.name) / "installed"
        subprocess.run([INSTALL[0], f"-DCMAKE_INSTALL_PREFIX={cls.prefix}", *INSTALL[1:]], check=True,
                       stdout=subprocess.DEVNULL)
        (cls.prefix / "bin").mkdir()
        shutil.copy(TOOL, cls.prefix / "bin")
        (cls.prefix / "share" / "unitmanager").symlink_to(DOCUMENTS)
        cls.shells = []
        for index, locale in enumerate(LOCALES):
            home = pathlib.Path(folder.name) / str(index)
            home.mkdir()
            for name in ("odd °.json", "labels.json"):
                (home / name).write_text(odd_document(), encoding="utf-8")
            cls.shells.append(SHELL(cls.prefix, home, {**os.environ, **locale}))
            cls.addClassCleanup(cls.shells[-1].close)

    def for_each_locale(self, check):
        for locale, shell in zip(LOCALES, self.shells):
            with self.subTest(locale):
                check(shell)

    def test_words_are_completed(self):
        def check(shell):
            for line, words in COMPLETED.items():
                with self.subTest(line):
                    self.assertEqual(shell.words_after(f"unitmanager {line}\t"), words)
            self.assertNotIn(b"unitmanager:", shell.terminal.output)

        self.for_each_locale(check)

    def test_typed_characters_may_be_longer_than_a_byte(self):
        shell = self.shells[LOCALES.index({"LC_ALL": "C.UTF-8"})]
        for line, words in {"convert 1 µ": ["convert", "1", "µV"],
                            "label '°C": ["label", "°C"],
                            "convert 5 'lb/10⁶ ft³' mg/": ["convert", "5", "lb/10⁶ ft³", "mg/m³"]}.items():
            with self.subTest(line):
                self.assertEqual(shell.words_after(f"unitmanager {line}\t"), words)

    def test_a_complete_word_is_followed_by_a_blank(self):
        def check(shell):
            self.assertEqual(shell.line_after("unitmanager conv\t1"), b"unitmanager convert 1")
            self.assertEqual(shell.line_after("unitmanager la\t1"), b"unitmanager label1")

        self.for_each_locale(check)

    def test_labels_are_quoted(self):
        def check(shell):
            for label, quote in itertools.product(ODD_LABELS, ("", "'", '"')):
                if (label, quote) in shell.not_comparable:
                    continue
                with self.subTest(label=label, quote=quote):
                    words = ["label", "--units", "labels.json", "Odd", label]
                    keys = f"unitmanager label --units labels.json Odd {quote}{label[0]}\t"
                    self.assertEqual(shell.words_after(keys), words)

        self.for_each_locale(check)

    def test_a_label_with_breaks_is_completed_after_each(self):
        def check(shell):
            for line in ("f:", "f:g", "f:g=", "'f:g", '"f:g='):
                with self.subTest(line):
                    keys = f"unitmanager label --units labels.json Odd {line}\t"
                    self.assertEqual(shell.words_after(keys), ["label", "--units", "labels.json", "Odd", "f:g=h"])

        self.for_each_locale(check)

    def test_the_rest_of_the_line_is_kept(self):
        def check(shell):
            keys = "unitmanager label Pre Bar\x02\x02\x02\x02\t"
            self.assertEqual(shell.words_after(keys), ["label", "Pressure", "Bar"])
            self.assertEqual(shell.line_after("echo 1 | unitmanager conv\t"), b"echo 1 | unitmanager convert ")
            self.assertEqual(shell.line_after("A=1 unitmanager conv\t"), b"A=1 unitmanager convert ")
            self.assertEqual(shell.line_after("true && unitmanager conv\t"), b"true && unitmanager convert ")

        self.for_each_locale(check)

    def test_verbs_are_those_of_the_help(self):
        verbs = [verb for verb in help_text.verbs(TOOL) if verb != "complete"]
        self.for_each_locale(lambda shell: self.assertCountEqual(shell.listed_after("unitmanager "), verbs))

    def test_options_are_those_of_the_help(self):
        def check(shell):
            for verb in help_text.verbs(TOOL):
                with self.subTest(verb):
                    options = [name.split(" <")[0] for names, _ in help_text.read(TOOL, verb).options
                               for name in names.split(", ") if name.startswith("--")]
                    self.assertCountEqual(shell.listed_after(f"unitmanager {verb} --"), options)

        self.for_each_locale(check)

    def test_documents_of_the_product_are_used(self):
        folder = self.prefix / "etc" / "unitmanager"
        self.addCleanup(shutil.rmtree, folder)
        folder.mkdir(parents=True)
        (folder / "units.json").write_text(odd_document(), encoding="utf-8")

        def check(shell):
            self.assertEqual(shell.words_after("unitmanager label O\ti\t"), ["label", "Odd", "i!j"])

        self.for_each_locale(check)

    def test_a_completed_command_runs(self):
        def check(shell):
            shell.output_after("unitmanager label RelativeHumidity %\\ r\t\r", "%RH\r\n")

        self.for_each_locale(check)


if __name__ == "__main__":
    unittest.main()
