"""The shipped documents are valid, and each kind of fault in a document is detected and reported."""

import pathlib
import unittest

import jsonschema

import document_rules

PROJECT = pathlib.Path(__file__).resolve().parents[2]
CONFIG = PROJECT / "config"
DATA = PROJECT / "tests" / "config" / "data"
LANGUAGES = ("en", "de", "fr")

BAR = "$.Pressure.Bar"
HECTOPASCAL = "$.Pressure.HectoPascal"

# File name -> start of the only finding: location, violated rule, and the object if the rule names it.
BROKEN_UNITS = {
    "arbitrary-table-of-ordinates": "$.Level.Percent.Table[0]: minItems",
    "arbitrary-table-without-table": "$.Level.Percent: required: 'Table'",
    "base-unit-missing": "Pressure: no base unit",
    "base-unit-twice": "Pressure: display position 0 occurs twice",
    "coefficient-nan": "number out of range: NaN",
    "coefficient-null": f"{BAR}.Polynomial[1][0]: type",
    "coefficient-out-of-range": "number out of range: 1e999",
    "coefficient-text": f"{BAR}.Polynomial[1][0]: type",
    "decimal-places-fraction": f"{BAR}.DecimalPlaces: type",
    "decimal-places-missing": f"{BAR}: required: 'DecimalPlaces'",
    "decimal-places-negative": f"{BAR}.DecimalPlaces: minimum",
    "decimal-places-text": f"{BAR}.DecimalPlaces: type",
    "decimal-places-too-many": f"{BAR}.DecimalPlaces: maximum",
    "display-position-fraction": f"{HECTOPASCAL}.@displayPosition: type",
    "display-position-missing": f"{HECTOPASCAL}: required: '@displayPosition'",
    "display-position-negative": f"{HECTOPASCAL}.@displayPosition: minimum",
    "display-position-text": f"{HECTOPASCAL}.@displayPosition: type",
    "display-position-twice": "Pressure: display position 1 occurs twice",
    "document-array": "$: type",
    "document-empty": "$: minProperties",
    "document-not-utf-8": "'utf-8' codec can't decode",
    "document-truncated": "Expecting property name",
    "document-without-text": "Expecting value: line 1 column 1",
    "equidistant-table-of-points": "$.Level.Percent.Table[0]: maxItems",
    "inverse-polynomial-missing": f"{BAR}: required: 'InversePolynomial'",
    "label-empty": f"{BAR}.UnitLabel.@value.en: minLength",
    "label-language-unknown": f"{BAR}.UnitLabel.@value: pattern: 'Deutsch'",
    "label-missing": f"{BAR}: required: 'UnitLabel'",
    "label-number": f"{BAR}.UnitLabel.@value.en: type",
    "label-plain-text": f"{BAR}.UnitLabel: type",
    "label-without-english": f"{BAR}.UnitLabel.@value: required: 'en'",
    "label-without-value": f"{BAR}.UnitLabel: required: '@value'",
    "member-misspelt": f"{BAR}: additionalProperties",
    "member-twice": "duplicate member 'DecimalPlaces'",
    "no-unit-among-units": "$.Pressure: maxProperties",
    "no-unit-not-at-position-0": "$.NoUnit.NoUnit.@displayPosition: const",
    "no-unit-with-converter": "$.NoUnit.NoUnit: additionalProperties",
    "no-unit-with-label": "$.NoUnit.NoUnit.UnitLabel.@value.en: const",
    "polynomial-empty": f"{BAR}.Polynomial: minItems",
    "polynomial-flat": f"{BAR}.Polynomial[0]: type",
    "polynomial-missing": f"{BAR}: required: 'Polynomial'",
    "polynomial-row-empty": f"{BAR}.Polynomial[1]: minItems",
    "polynomial-row-of-two": f"{BAR}.Polynomial[0]: maxItems",
    "unit-name-empty": "$.Pressure: pattern: ''",
    "unit-name-reserved": "$.Pressure: not",
    "unit-name-with-slash": "$.Pressure: pattern: 'Pressure/Bar'",
    "unit-null": f"{BAR}: type",
    "unit-twice": "duplicate member 'Bar'",
    "unit-type-empty": "$.Pressure: minProperties",
    "unit-type-name-with-prefix": "$: pattern: 'UnitManager/UnitType/Pressure'",
    "unit-type-null": "$.Pressure: type",
    "unit-type-twice": "duplicate member 'Pressure'",
}
BROKEN_DEFAULT_UNITS = {
    "default-plain-text": "$.Pressure: type",
    "document-empty": "$: minProperties",
    "document-truncated": "Invalid control character",
    "member-unknown": "$.Pressure: additionalProperties",
    "no-unit": "NoUnit: has no default unit",
    "type-missing": "$.Pressure: required: '@type'",
    "type-of-another-kind": "$.Pressure.@type: const",
    "unit-of-another-type": "Pressure: UnitManager/UnitType/Time/Seconds is not a unit of this type",
    "unit-type-twice": "duplicate member 'Pressure'",
    "unit-type-unknown": "Presure: unknown unit type",
    "unit-type-with-prefix": "$: pattern: 'UnitManager/UnitType/Pressure'",
    "unit-unknown": "Pressure: unknown unit bar",
    "value-empty": "$.Pressure.@value: pattern: ''",
    "value-missing": "$.Pressure: required: '@value'",
    "value-number": "$.Pressure.@value: type",
    "value-with-trailing-slash": "$.Pressure.@value: pattern: 'Bar/'",
}


class DocumentsTest(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.units_schema = document_rules.load(CONFIG / "units.schema.json")
        cls.default_units_schema = document_rules.load(CONFIG / "default-units.schema.json")
        cls.units = document_rules.load(CONFIG / "units.json")
        cls.default_units = document_rules.load(CONFIG / "default-units.json")

    def unit_findings(self, path):
        return document_rules.unit_findings(path.read_bytes(), self.units_schema)

    def default_unit_findings(self, path):
        return document_rules.default_unit_findings(path.read_bytes(), self.default_units_schema, self.units)

    def check_samples(self, folder, expected_findings, findings_of):
        samples = {path.stem: path for path in (DATA / folder).iterdir()}
        self.assertEqual(sorted(samples), sorted(expected_findings))
        for name, path in samples.items():
            with self.subTest(name):
                findings = findings_of(path)
                self.assertEqual(len(findings), 1, findings)
                self.assertTrue(findings[0].startswith(expected_findings[name]), findings[0])

    def test_schemas_are_valid(self):
        jsonschema.Draft202012Validator.check_schema(self.units_schema)
        jsonschema.Draft202012Validator.check_schema(self.default_units_schema)

    def test_shipped_units_are_sound(self):
        self.assertEqual(self.unit_findings(CONFIG / "units.json"), [])

    def test_shipped_default_units_are_sound(self):
        self.assertEqual(self.default_unit_findings(CONFIG / "default-units.json"), [])

    def test_every_kind_of_unit_is_accepted(self):
        self.assertEqual(self.unit_findings(DATA / "sound-units.json"), [])

    def test_fixed_unit_is_accepted_as_default_unit(self):
        text = b'{ "Pressure": { "@type": "Selection", "@value": "UnitManager/UnitType/Pressure/Bar" } }'
        self.assertEqual(document_rules.default_unit_findings(text, self.default_units_schema, self.units), [])

    def test_notes_for_editors_are_accepted(self):
        notes = b'{ "$schema": "units.schema.json", "$comment": [1], '
        units = (CONFIG / "units.json").read_bytes().replace(b"{", notes, 1)
        self.assertEqual(document_rules.unit_findings(units, self.units_schema), [])
        default_units = (CONFIG / "default-units.json").read_bytes().replace(b"{", notes, 1)
        self.assertEqual(
            document_rules.default_unit_findings(default_units, self.default_units_schema, self.units), []
        )

    def test_schemas_have_their_own_identifiers(self):
        self.assertEqual(self.units_schema["$id"], "urn:unitmanager:units")
        self.assertEqual(self.default_units_schema["$id"], "urn:unitmanager:default-units")

    def test_broken_unit_documents_are_rejected_for_their_fault(self):
        self.check_samples("broken-units", BROKEN_UNITS, self.unit_findings)

    def test_broken_default_unit_documents_are_rejected_for_their_fault(self):
        self.check_samples("broken-default-units", BROKEN_DEFAULT_UNITS, self.default_unit_findings)

    def test_shipped_labels_exist_in_every_language(self):
        labels = {
            f"{unit_type}/{name}": unit["UnitLabel"]["@value"]
            for unit_type, units in self.units.items()
            for name, unit in units.items()
        }
        self.assertEqual(len(labels), 48)
        for name, label in labels.items():
            with self.subTest(name):
                self.assertEqual(tuple(label), LANGUAGES)
                self.assertEqual(any(label.values()), name != "NoUnit/NoUnit")
                self.assertEqual(list(label.values()), [text.strip() for text in label.values()])

    def test_labels_of_a_unit_type_are_distinct(self):
        for unit_type, units in self.units.items():
            for language in LANGUAGES:
                with self.subTest(f"{unit_type} {language}"):
                    labels = [unit["UnitLabel"]["@value"][language] for unit in units.values()]
                    self.assertEqual(len(set(labels)), len(labels))

    def test_shipped_display_positions_are_consecutive(self):
        for unit_type, units in self.units.items():
            with self.subTest(unit_type):
                self.assertEqual([unit["@displayPosition"] for unit in units.values()], list(range(len(units))))

    def test_every_unit_type_but_the_unit_less_one_has_a_default_unit(self):
        self.assertEqual(list(self.default_units), [name for name in self.units if name != document_rules.NO_UNIT])


if __name__ == "__main__":
    unittest.main()
