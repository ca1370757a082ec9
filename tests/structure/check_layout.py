"""Checks the order of virtual functions, bases and members of the exported classes, because existing device programs
rely on it.

A probe is derived from each class; its own virtual function makes the compiler dump the whole virtual table. The
patterns of a table may contain `*` for variable parts, such as the name of a private member.
"""

import json
import re
import sys
from pathlib import Path

from project import Project, finish, run

RECORD = re.compile(r"^\*\*\* Dumping AST Record Layout\n(.*?)\n +\| \[", re.MULTILINE | re.DOTALL)
VTABLE = re.compile(r"^Vtable for '(\w+)' \(\d+ entries\)\.\n(.*?)\n\n", re.MULTILINE | re.DOTALL)
SLOT = re.compile(r"^ *\d+ \| (.*)$", re.MULTILINE)
RECORD_LINE = re.compile(r"^ *\d+ \|( +)(.*)$")
BASE_SUFFIX = re.compile(r" \((primary )?base\)( \(empty\))?$")


def plain(text):
    """A type or function in its usual notation."""
    text = re.sub(r"\b(class|struct|enum|union) ", "", text).replace("_Bool", "bool")
    text = re.sub(r" \[\w+ = [^\]]*\]", "", text)
    return re.sub(r" (?=[>*&])", "", text)


def matches(pattern, text):
    return re.fullmatch(re.escape(pattern).replace(r"\*", ".*"), text) is not None


def probe_source(headers, classes):
    lines = [f'#include "{header}"' for header in headers]
    lines.append("#include <QtCore/QObject>")
    for index, name in enumerate(["QObject", *classes]):
        lines.append(f"using Subject{index} = {name};")
        lines.append(f"struct Probe{index} : Subject{index} {{ virtual void probe(); }};")
        lines.append(f"void Probe{index}::probe() {{}}")
    return "\n".join(lines) + "\n"


def virtual_functions(dump):
    """Probe -> the functions in its virtual table, in slot order, without the probe's own function."""
    tables = {}
    for probe, body in VTABLE.findall(dump + "\n\n"):
        slots = [plain(slot).replace(f"{probe}::~{probe}()", "destructor") for slot in SLOT.findall(body)]
        tables[probe] = slots[2:-1]  # drop offset to top, type information and the probe's function
    return tables


def records(dump):
    """Probe -> (bases, members) of the class that it derives from."""
    found = {}
    for body in RECORD.findall(dump):
        lines = [RECORD_LINE.match(line) for line in body.splitlines()]
        rows = [(len(line[1]), line[2]) for line in lines if line]
        probe = rows[0][1].removeprefix("struct ")
        if re.fullmatch(r"Probe\d+", probe):
            found[probe] = bases_and_members([text for depth, text in rows if depth == 5])
    return found


def bases_and_members(lines):
    bases, members = [], []
    for line in lines:
        if line.endswith("vtable pointer)"):
            continue
        if BASE_SUFFIX.search(line):
            bases.append(plain(BASE_SUFFIX.sub("", line)))
        else:
            member_type, name = plain(line.rpartition(" ")[0]), line.rpartition(" ")[2]
            members.append(f"{member_type} {name}")
    return bases, members


def compare(name, what, expected, seen):
    if len(expected) == len(seen) and all(map(matches, expected, seen)):
        return []
    return [f"{name}: {what}", *(f"    expected {row}" for row in expected), *(f"    seen     {row}" for row in seen)]


def without_object_slots(name, slots, object_slots):
    """The functions after those of QObject, and a problem if the class does not have its own meta-object."""
    meta_object = f"const QMetaObject*{name}::metaObject() const"
    own = slots[:1] == [meta_object]
    return slots[len(object_slots):], [] if own else [f"{name}: no meta-object of its own, but {slots[:1]}"]


def read_rows(project):
    """The rows whose headers are installed, and a problem for each table with an unexpected number of such rows."""
    rows, problems = {}, []
    for table in project.facts["layouts"]:
        with open(Path(__file__).parent / "data" / table["file"], encoding="utf-8") as file:
            known = json.load(file)
        compared = {name: row for name, row in known.items() if row["header"] in project.installed_headers}
        if len(compared) != table["classes"]:
            problems.append(f"{table['file']}: {table['classes']} classes shall be compared, not {len(compared)}")
        rows.update(compared)
    return rows, problems


def main():
    project = Project(sys.argv[1])
    rows, problems = read_rows(project)
    source = project.scratch / "layout-probes.cpp"
    source.write_text(probe_source(project.installed_headers, rows), encoding="utf-8")
    dump = run([project.facts["clang"], f"--target={project.facts['architecture']}", "-std=c++17", "-fPIC",
                *project.package_flags("--cflags"), "-emit-llvm", "-c", "-Xclang", "-fdump-vtable-layouts",
                "-Xclang", "-fdump-record-layouts", source, "-o", "/dev/null"])
    tables, layouts = virtual_functions(dump), records(dump)
    object_slots = tables["Probe0"]

    for index, (name, row) in enumerate(rows.items(), start=1):
        slots = tables[f"Probe{index}"]
        if row.get("isObject", False):
            slots, missing = without_object_slots(name, slots, object_slots)
            problems += missing
        bases, members = layouts[f"Probe{index}"]
        problems += compare(name, "bases", row["bases"], bases)
        problems += compare(name, "virtual functions", row["virtual"], slots)
        problems += compare(name, "members", row["members"], members)
    finish(problems, f"{len(rows)} classes compared")


main()
