"""The shipped coefficients match the exact definitions of the units to the last bit."""

import copy
import json
import math
import pathlib
import subprocess
import sys
import tempfile
import unittest

PROJECT = pathlib.Path(__file__).resolve().parents[2]
SCRIPT = PROJECT / "config" / "coefficients.py"
UNITS = PROJECT / "config" / "units.json"
sys.path.insert(0, str(SCRIPT.parent))

import coefficients


class CoefficientsTest(unittest.TestCase):
    def setUp(self):
        self.units = json.loads(UNITS.read_text(encoding="utf-8"))

    def test_every_coefficient_is_the_nearest_double(self):
        self.assertEqual(coefficients.findings(self.units), [])

    def test_the_next_double_is_not_accepted(self):
        changed = 0
        for unit_type, definitions in coefficients.DEFINITIONS.items():
            for name in definitions:
                for key in ("Polynomial", "InversePolynomial"):
                    for power in (0, 1):
                        units = copy.deepcopy(self.units)
                        row = units[unit_type][name][key][power]
                        row[0] = math.nextafter(row[0], math.inf)
                        findings = coefficients.findings(units)
                        self.assertEqual(len(findings), 1, findings)
                        self.assertTrue(findings[0].startswith(f"{unit_type}/{name}: {key} is "), findings[0])
                        changed += 1
        self.assertEqual(changed, 47 * 2 * 2)

    def test_further_coefficient_is_not_accepted(self):
        self.units["Pressure"]["Bar"]["Polynomial"].append([1])
        self.assertEqual(len(coefficients.findings(self.units)), 1)

    def test_unit_without_definition_is_reported(self):
        self.units["Pressure"]["Barye"] = self.units["Pressure"]["Bar"]
        self.assertEqual(coefficients.findings(self.units), ["Pressure: Barye has no definition"])

    def test_unit_missing_in_the_document_is_reported(self):
        del self.units["Pressure"]["Torr"]
        self.assertEqual(coefficients.findings(self.units), ["Pressure: Torr is not in the document"])

    def test_unit_type_without_definition_is_reported(self):
        self.units["Mass"] = {}
        self.assertEqual(coefficients.findings(self.units), ["document: Mass has no definition"])

    def test_notes_for_editors_are_ignored(self):
        self.units["$schema"] = "units.schema.json"
        self.assertEqual(coefficients.findings(coefficients.unit_types_of(self.units)), [])

    def test_unit_type_missing_in_the_document_is_reported(self):
        del self.units["Time"]
        self.assertEqual(coefficients.findings(self.units), ["document: Time is not in the document"])

    def test_rounded_definition_is_rejected(self):
        with self.assertRaises(TypeError):
            coefficients.exactly(0.3048)
        with self.assertRaises(TypeError):
            coefficients.exactly(1, 273.15)

    def test_command_accepts_the_shipped_document(self):
        result = self.run_command("--check", UNITS)
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", ""))

    def test_command_names_the_fault_of_a_changed_document(self):
        self.units["Pressure"]["Torr"]["InversePolynomial"] = [[0], [0.00133322368]]
        with tempfile.NamedTemporaryFile("w", suffix=".json", encoding="utf-8") as changed:
            json.dump(self.units, changed)
            changed.flush()
            result = self.run_command("--check", changed.name)
        self.assertEqual((result.returncode, result.stdout), (1, ""))
        self.assertEqual(
            result.stderr,
            "Pressure/Torr: InversePolynomial is [[0], [0.00133322368]], "
            "its definition gives [[0.0], [0.0013332236842105263]]\n",
        )

    def test_command_prints_what_the_document_holds(self):
        result = self.run_command(UNITS)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        lines = result.stdout.splitlines()
        self.assertEqual(len(lines), 47)
        for line in lines:
            name, printed = line.split(" ", 1)
            unit_type, unit = name.split("/")
            for key, polynomial in json.loads(printed).items():
                self.assertEqual(self.units[unit_type][unit][key], polynomial, name)

    def test_command_reports_an_unusable_document_in_one_line(self):
        bar = {"@displayPosition": 0, "Polynomial": [[0], [1]], "InversePolynomial": [[0], [1]]}
        pascal = {**bar, "@displayPosition": 1}
        pressure = self.units["Pressure"]
        rows = {
            "not JSON": ("{", "not JSON: Expecting property name enclosed in double quotes: line 1 column 2 (char 1)"),
            "empty": ("", "not JSON: Expecting value: line 1 column 1 (char 0)"),
            "list": ([], "the document is not an object"),
            "type is null": ({"Pressure": None}, "Pressure is not an object"),
            "type is text": ({"Pressure": "Bar"}, "Pressure is not an object"),
            "unit is null": ({"Pressure": {"Bar": None}}, "Pressure/Bar is not an object"),
            "unit is text": ({"Pressure": {"Bar": "bar"}}, "Pressure/Bar is not an object"),
            "no position": ({"Pressure": {"Bar": bar, "Pascal": {}}}, "Pressure/Pascal has no @displayPosition"),
            "no base unit": (
                {**self.units, "Pressure": {name: {**unit, "@displayPosition": 1} for name, unit in pressure.items()}},
                "Pressure has no base unit, which has @displayPosition 0",
            ),
        }
        for arguments in ([], ["--check"]):
            for name, (document, message) in rows.items():
                with self.subTest(name, arguments=arguments):
                    self.check_unusable(document, message, *arguments)
        # Compared with the definitions, these are differences.
        del self.units["Time"]
        self.check_unusable(self.units, "the document has no unit type Time")
        self.check_unusable({"Pressure": {"Barye": bar, "Pascal": pascal}}, "Pressure/Barye has no definition")

    def test_command_reports_a_missing_file(self):
        result = self.run_command("--check", "/does/not/exist.json")
        self.assertEqual((result.returncode, result.stdout), (2, ""))
        self.assertEqual(result.stderr, "coefficients.py: /does/not/exist.json: No such file or directory\n")

    def check_unusable(self, document, message, *arguments):
        text = document if isinstance(document, str) else json.dumps(document)
        with tempfile.NamedTemporaryFile("w", suffix=".json", encoding="utf-8") as file:
            file.write(text)
            file.flush()
            result = self.run_command(*arguments, file.name)
            self.assertEqual((result.returncode, result.stdout), (2, ""))
            self.assertEqual(result.stderr, f"coefficients.py: {file.name}: {message}\n")

    @staticmethod
    def run_command(*arguments):
        return subprocess.run(
            [sys.executable, "-B", SCRIPT, *arguments], capture_output=True, encoding="utf-8", check=False
        )


if __name__ == "__main__":
    unittest.main()
