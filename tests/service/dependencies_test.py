"""The shipped dependency document is valid and complete, and each kind of fault is detected and reported."""

import pathlib
import sys
import unittest

import jsonschema

PROJECT = pathlib.Path(__file__).resolve().parents[2]
CONFIG = PROJECT / "config"
sys.path.append(str(PROJECT / "tests" / "config"))

import document_rules  # noqa: E402 (needs the path above)

# Scenario -> document and start of the only finding.
BROKEN = {
    "document is a list": ([], "$: type"),
    "key is empty": ({"": ["Pressure"]}, "$: pattern"),
    "key is a property": ({"@value": ["Pressure"]}, "$: pattern"),
    "dependents are one text": ({"PressureUnit": "Pressure"}, "$.PressureUnit: type"),
    "dependents are missing": ({"PressureUnit": []}, "$.PressureUnit: minItems"),
    "dependent twice": ({"PressureUnit": ["Pressure", "Pressure"]}, "$.PressureUnit: uniqueItems"),
    "dependent is a number": ({"PressureUnit": ["Pressure", 1]}, "$.PressureUnit[1]: type"),
    "dependent is empty": ({"PressureUnit": [""]}, "$.PressureUnit[0]: pattern"),
    "dependent is a property": ({"PressureUnit": ["@value"]}, "$.PressureUnit[0]: pattern"),
}


class DependenciesTest(unittest.TestCase):
    def setUp(self):
        self.schema = document_rules.load(CONFIG / "dependencies.schema.json")
        self.document = document_rules.load(CONFIG / "dependencies.json")

    def test_schema_is_one(self):
        jsonschema.Draft202012Validator.check_schema(self.schema)
        self.assertEqual(self.schema["$id"], "urn:unitmanager:dependencies")

    def test_shipped_document_is_sound(self):
        self.assertEqual(document_rules.schema_findings(self.document, self.schema), [])

    def test_each_unit_type_with_units_has_its_entry(self):
        units = document_rules.load(CONFIG / "units.json")
        expected = {f"{name}Unit": [name, f"{name}Range"] for name in units if name != document_rules.NO_UNIT}
        self.assertGreater(len(expected), 0)
        self.assertEqual(self.document, expected)

    def test_sound_documents(self):
        for document in ({}, {"a": ["b"], "b": ["a"]}, {"a": ["a"]}, {"$schema": "x", "$n": {}, "a": ["b"]}):
            with self.subTest(document=document):
                self.assertEqual(document_rules.schema_findings(document, self.schema), [])

    def test_faults_are_found(self):
        for scenario, (document, beginning) in BROKEN.items():
            with self.subTest(scenario):
                findings = document_rules.schema_findings(document, self.schema)
                self.assertEqual(len(findings), 1, findings)
                self.assertEqual(findings[0][: len(beginning)], beginning)


if __name__ == "__main__":
    unittest.main()
