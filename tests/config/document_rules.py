"""The rules for unit documents and default-unit documents: their schemas, and rules that a schema cannot express."""

import json
import math

import jsonschema

NO_UNIT = "NoUnit"
UNIT_TYPE_PREFIX = "UnitManager/UnitType/"


class BrokenDocument(Exception):
    """The text is not a JSON document with unique names and finite numbers."""


def unique_members(members):
    result = {}
    for name, value in members:
        if name in result:
            raise BrokenDocument(f"duplicate member '{name}'")
        result[name] = value
    return result


def finite_number(text):
    value = float(text)
    if not math.isfinite(value):
        raise BrokenDocument(f"number out of range: {text}")
    return value


def parse(text):
    try:
        return json.loads(
            text.decode("utf-8"),
            object_pairs_hook=unique_members,
            parse_float=finite_number,
            parse_constant=finite_number,
        )
    except ValueError as error:
        raise BrokenDocument(str(error)) from error


def entries(document):
    """The members of a document without notes for editors, such as "$schema"."""
    return {name: value for name, value in document.items() if not name.startswith("$")}


def load(path):
    return parse(path.read_bytes())


def schema_findings(document, schema):
    validator = jsonschema.Draft202012Validator(schema)
    return [f"{error.json_path}: {error.validator}: {error.message}" for error in validator.iter_errors(document)]


def display_position_findings(unit_type, units):
    positions = [unit["@displayPosition"] for unit in units.values()]
    result = [f"{unit_type}: display position {p} occurs twice" for p in set(positions) if positions.count(p) > 1]
    if 0 not in positions:
        result.append(f"{unit_type}: no base unit")
    return result


def unit_findings(text, schema):
    """One line per fault of a unit document; none for a valid one."""
    try:
        document = parse(text)
    except BrokenDocument as error:
        return [str(error)]
    # The rules below rely on members that the schema requires.
    return schema_findings(document, schema) or [
        finding for unit_type, units in entries(document).items()
        for finding in display_position_findings(unit_type, units)
    ]


def default_unit_finding(unit_type, value, units):
    if unit_type not in units:
        return f"{unit_type}: unknown unit type"
    if unit_type == NO_UNIT:
        return f"{unit_type}: has no default unit"
    owner, _, unit = value.rpartition("/")
    if owner not in ("", UNIT_TYPE_PREFIX + unit_type):
        return f"{unit_type}: {value} is not a unit of this type"
    if unit not in units[unit_type]:
        return f"{unit_type}: unknown unit {unit}"
    return None


def default_unit_findings(text, schema, units):
    """One line per fault of a default-unit document for the unit document units; none for a valid one."""
    try:
        document = parse(text)
    except BrokenDocument as error:
        return [str(error)]
    findings = schema_findings(document, schema)
    if findings:
        return findings
    candidates = (default_unit_finding(name, node["@value"], units) for name, node in entries(document).items())
    return [finding for finding in candidates if finding]
