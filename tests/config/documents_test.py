"""The shipped documents are valid, and the schemas find each structural fault of the corpus of faulty documents."""

import pathlib
import re
import unittest

import jsonschema

import document_rules

PROJECT = pathlib.Path(__file__).resolve().parents[2]
CONFIG = PROJECT / "config"
CORPUS = PROJECT / "tests" / "documents" / "corpus"
KINDS = ("units", "default-units", "dependencies")
LANGUAGES = ("en", "de", "fr")
# From the least to the most severe.
VERDICTS = ("accepts", "rejects", "unreadable")

# Rules about the text of a document. A list as document is readable for the JSON parser of Python.
UNREADABLE = {"encoding", "nesting", "duplicate-name", "number-overflow"}
# Rules that a schema can express. The others concern several members or the meaning of a value.
STRUCTURAL = UNREADABLE | {
    "syntax", "document-empty", "name-invalid", "name-unusual", "null-node", "type-invalid", "type-empty", "no-unit-invalid",
    "unit-invalid", "unknown-member", "conversion-missing", "conversion-ambiguous", "coefficients-invalid",
    "inverse-missing", "position-invalid", "decimals-invalid", "label-missing", "label-invalid",
    "language-invalid", "default-invalid", "dependency-invalid", "dependency-empty", "dependency-duplicate",
}  # fmt: skip
# The service's verdict by the most severe finding.
SERVICE = {"error": "refuses", "warning": "warns", "note": "accepts"}
FINDING = re.compile(r"(?:[a-z-]+\.json )?\d+:\d+ (error|warning|note) ([a-z-]+)(?: (.+))?", re.DOTALL)


class Entry:
    """A document of the corpus, or a folder with the documents of a device, and what is expected of it."""

    def __init__(self, name, expected):
        self.name = name
        self.expected = expected
        path = CORPUS / name
        self.files = sorted(path.iterdir()) if path.is_dir() else [path]
        findings = [FINDING.fullmatch(finding).groups(default="") for finding in expected["findings"]]
        self.severities = {severity for severity, _, _ in findings}
        self.rules = {rule for _, rule, _ in findings}
        self.paths = [path for _, _, path in findings]

    def kind(self, file):
        return file.stem if len(self.files) > 1 else self.name.split("/")[0]


def is_at_or_around(outer, inner):
    return not outer or inner == outer or inner.startswith(outer + "/")


class DocumentsTest(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.schemas = {kind: document_rules.load(CONFIG / f"{kind}.schema.json") for kind in KINDS}
        cls.units = document_rules.load(CONFIG / "units.json")
        cls.default_units = document_rules.load(CONFIG / "default-units.json")
        expected = document_rules.load(CORPUS / "expected.json")
        cls.corpus = [Entry(name, entry) for name, entry in expected.items()]

    def errors(self, kind, path):
        return document_rules.schema_errors(document_rules.load(path), self.schemas[kind])

    def verdict(self, kind, path):
        try:
            return "rejects" if self.errors(kind, path) else "accepts"
        except document_rules.BrokenDocument:
            return "unreadable"

    def test_schemas_are_valid(self):
        for kind, schema in self.schemas.items():
            with self.subTest(kind):
                jsonschema.Draft202012Validator.check_schema(schema)
                self.assertEqual(schema["$id"], f"urn:unitmanager:{kind}")

    def test_shipped_documents_are_accepted(self):
        for kind in KINDS:
            with self.subTest(kind):
                document = document_rules.load(CONFIG / f"{kind}.json")
                self.assertEqual(document_rules.schema_findings(document, self.schemas[kind]), [])

    def test_notes_for_editors_are_accepted(self):
        for kind in KINDS:
            with self.subTest(kind):
                notes = {"$schema": f"{kind}.schema.json", "$comment": [1]}
                document = {**notes, **document_rules.load(CONFIG / f"{kind}.json")}
                self.assertEqual(document_rules.schema_findings(document, self.schemas[kind]), [])

    def test_every_document_of_the_corpus_has_its_expectation(self):
        files = sorted(file for entry in self.corpus for file in entry.files)
        self.assertEqual(files, sorted(set(CORPUS.glob("**/*.json")) - {CORPUS / "expected.json"}))
        self.assertEqual(len(self.corpus), 242)

    def test_schemas_detect_structural_faults(self):
        for entry in self.corpus:
            with self.subTest(entry.name):
                verdicts = [self.verdict(entry.kind(file), file) for file in entry.files]
                self.assertEqual(max(verdicts, key=VERDICTS.index), entry.expected["schema"])

    def test_schemas_locate_faults(self):
        located = 0
        for entry in self.corpus:
            if entry.expected["schema"] != "rejects":
                continue
            for file in entry.files:
                for error in self.errors(entry.kind(file), file):
                    with self.subTest(entry.name, error=error.message):
                        path = "/".join(map(str, error.absolute_path))
                        self.assertTrue(
                            any(is_at_or_around(path, p) or is_at_or_around(p, path) for p in entry.paths), path
                        )
                    located += 1
        self.assertGreater(located, 0)

    def test_schema_and_findings_agree(self):
        for entry in self.corpus:
            with self.subTest(entry.name):
                schema = entry.expected["schema"]
                if schema != "accepts":
                    self.assertTrue(entry.rules)
                if entry.rules & STRUCTURAL:
                    self.assertNotEqual(schema, "accepts")
                if entry.rules & UNREADABLE:
                    self.assertEqual(schema, "unreadable")

    def test_errors_decide_what_the_service_does(self):
        for entry in self.corpus:
            with self.subTest(entry.name):
                decisive = [severity for severity in SERVICE if severity in entry.severities]
                expected = SERVICE[decisive[0]] if decisive else "accepts"
                self.assertEqual(entry.expected["service"], expected)

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
        for unit_type, default in self.default_units.items():
            self.assertIn(default["@value"], self.units[unit_type])


if __name__ == "__main__":
    unittest.main()
