"""Reads documents as strictly as the programs do, and validates them against their schemas."""

import json
import math
import re

import jsonschema

NO_UNIT = "NoUnit"


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


def whole_number(text):
    finite_number(text)
    return int(text)


def parse(text):
    try:
        document = json.loads(
            text.decode("utf-8-sig"),
            object_pairs_hook=unique_members,
            parse_float=finite_number,
            parse_int=whole_number,
            parse_constant=finite_number,
        )
        # Fails for half of a surrogate pair, which the parser accepts as an escape.
        json.dumps(document, ensure_ascii=False).encode("utf-8")
    except (ValueError, RecursionError) as error:
        raise BrokenDocument(str(error)) from error
    return document


def entries(document):
    """The members of a document without notes for editors, such as "$schema"."""
    return {name: value for name, value in document.items() if not name.startswith("$")}


def load(path):
    return parse(path.read_bytes())


def pattern_errors(validator, pattern, instance, schema):
    """Patterns of a schema as in ECMAScript, where "$" does not match before a line break at the end."""
    if validator.is_type(instance, "string") and not re.search(re.sub(r"(?<!\\)\$", r"\\Z", pattern), instance):
        yield jsonschema.ValidationError(f"{instance!r} does not match {pattern!r}")


SchemaValidator = jsonschema.validators.extend(jsonschema.Draft202012Validator, {"pattern": pattern_errors})


def schema_errors(document, schema):
    return list(SchemaValidator(schema).iter_errors(document))


def schema_findings(document, schema):
    """One line per error: location, violated keyword and message."""
    return [f"{error.json_path}: {error.validator}: {error.message}" for error in schema_errors(document, schema)]
