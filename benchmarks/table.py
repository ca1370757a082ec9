#!/usr/bin/env python3
"""Turns a run of unitmanager-benchmarks into a table: the cost of each operation, its ratio to the baselines and
competitors measured in the same run, and which goals are met.

    table.py RUN.json                              prints the table
    table.py RUN.json --write docs/performance.md  also writes it between the markers of that file

Exits with 1 if a benchmark found a wrong result or is missing from the run, regardless of the goals.
"""

import argparse
import json
import re
import sys
from dataclasses import dataclass, field
from pathlib import Path

BEGIN = "<!-- figures: written by benchmarks/table.py -->"
END = "<!-- end of figures -->"

NANOSECONDS = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}


@dataclass(frozen=True)
class Value:
    """A figure of a run: the median time (or a counter's median), divided by `per`."""

    name: str
    counter: str = ""
    per: int = 1


@dataclass(frozen=True)
class Sum:
    """A weighted sum of figures of a run."""

    parts: list[tuple[float, Value]]


@dataclass(frozen=True)
class Against:
    """Reference of a row. The row is divided by a baseline; a competitor is divided by the row (higher is better)."""

    label: str
    value: Value | Sum
    goal: float | None = None


@dataclass(frozen=True)
class Row:
    title: str
    value: Value
    baselines: list[Against] = field(default_factory=list)
    competitors: list[Against] = field(default_factory=list)
    at_most: float | None = None


def conversion_rows():
    by_names = [
        Against("KUnitConversion", Value("competitor/KUnitConversion by names"), 20.0),
        Against("UDUNITS", Value("competitor/UDUNITS by names"), 20.0),
    ]
    for operation in ("fromBaseUnit", "toBaseUnit"):
        for scenario in ("unit", "default unit", "fixed unit", "unknown unit"):
            named = scenario == "unit"
            goal = 1.3 if named else None
            baselines = [Against("literal", Value(f"baseline/literal {operation}/{scenario}"), goal)]
            one_look_up = Value(f"baseline/one-look-up {operation}/unit")
            if named:
                baselines.append(Against("one look-up", one_look_up))
            if scenario == "default unit":
                baselines.append(Against("1.5 one look-up + default unit",
                                      Sum([(1.5, one_look_up), (1.0, Value("baseline/default unit"))]), 1.0))
            if scenario == "fixed unit":
                baselines.append(Against("one look-up", Value(f"baseline/one-look-up {operation}/fixed unit"), 1.5))
            yield Row(f"`{operation}`, {scenario}", Value(f"conversion/{operation}/{scenario}"), baselines,
                      by_names if named else [])
            raw_baselines = [
                Against("nested look-up", Value("baseline/nested look-up"), 1.5),
                Against("same, variants", Value("baseline/nested look-up of variants")),
            ]
            yield Row(f"`{operation}Raw`, {scenario}", Value(f"conversion/{operation}Raw/{scenario}"),
                      raw_baselines if named else [], by_names if named else [])
    yield Row("`fromBaseUnit`, every unit in turn", Value("conversion/fromBaseUnit/every unit"),
              [Against("literal", Value("baseline/literal fromBaseUnit/every unit"), 1.3),
               Against("one look-up", Value("baseline/one-look-up fromBaseUnit/every unit"))])


def node_rows():
    for title, name, baseline, operation in (
            ("`getValue` of a node", "node/getValue", "node read", "fromBaseUnitRaw"),
            ("`setValueStatus` of a node", "node/setValueStatus", "node write", "toBaseUnitRaw"),
            ("`getValueNoLock`", "process data/getValueNoLock", "process data read", "fromBaseUnitRaw"),
            ("`setValueNoLock`", "process data/setValueNoLock", "process data write", "toBaseUnitRaw")):
        unconverted = Value(f"baseline/{baseline}")
        yield Row(title, Value(name),
                  [Against("unconverted", unconverted),
                   Against("unconverted + by names",
                           Sum([(1.0, unconverted), (1.0, Value(f"conversion/{operation}/unit"))]), 2.0)])
    for columns in (10, 1000):
        for operation in ("getValueArray", "setValueArray"):
            yield Row(f"`{operation}`, {columns} columns", Value(f"array/{operation}/{columns}"),
                      [Against("list by hand", Value(f"baseline/list of variants/{columns}"), 1.8),
                       Against("plain loop", Value(f"baseline/plain loop/{columns}"))],
                      [Against("UDUNITS array", Value(f"competitor/UDUNITS array/{columns}"))])


def hot_loop_rows():
    yield Row("one value, the conversion found before", Value("conversion/resolved"),
              [Against("polynomial with hardware `fma`", Value("baseline/polynomial with hardware fma"), 1.6)],
              [Against("UDUNITS converter", Value("competitor/UDUNITS converter"))])
    for count in (10, 1000, 1000000):
        for title, name in (("an array", "run"), ("the conversion found once", "conversion found once"),
                            ("single conversions", "single conversions")):
            is_array = name == "run"
            yield Row(f"{count:,} numbers, {title}", Value(f"hot loop/{name}/{count}"),
                      [Against("plain loop", Value(f"baseline/plain loop/{count}")),
                       Against("memcpy", Value(f"baseline/memcpy/{count}"),
                               1.5 if is_array and count == 1000000 else None)],
                      [Against("UDUNITS array", Value(f"competitor/UDUNITS array/{count}"),
                               2.5 if is_array and count == 1000 else None)])


def label_rows():
    for scenario in ("unit", "default unit"):
        yield Row(f"`getUnitText`, {scenario}", Value(f"label/getUnitText/{scenario}"),
                  [Against("nested look-up", Value(f"baseline/label/{scenario}"))],
                  [Against("KUnitConversion", Value("competitor/KUnitConversion symbol")),
                   Against("UDUNITS", Value("competitor/UDUNITS symbol"))])


def loading_rows():
    yield Row("loading the shipped documents", Value("loading/shipped documents"),
              [Against("Qt's parser twice", Value("baseline/Qt's parser twice/shipped documents"), 4.0)],
              [Against("UDUNITS, its own database", Value("competitor/UDUNITS loads its database"))])
    for count in (100, 1000, 10000, 100000):
        level = [Against("per unit of 1,000", Value("loading/units/1000", per=1000), 1.5)]
        yield Row(f"loading {count:,} units, per unit", Value(f"loading/units/{count}", per=count),
                  (level if count > 1000 else []) +
                  [Against("Qt's parser twice", Value(f"baseline/Qt's parser twice/{count}", per=count))])
    for count in (100, 1000, 10000, 100000):
        peak = "peakBytesPerUnit"
        level = [Against("per unit of 1,000", Value("memory/units/1000", peak), 1.5)]
        yield Row(f"peak memory of loading {count:,} units, per unit", Value(f"memory/units/{count}", peak),
                  (level if count > 1000 else []) +
                  [Against("Qt's document", Value(f"baseline/memory of Qt's parser/{count}", peak))],
                  at_most=2048.0 if count >= 1000 else None)
    yield Row("memory kept by 100,000 units, per unit", Value("memory/units/100000", "keptBytesPerUnit"),
              [Against("Qt's document", Value("baseline/memory of Qt's parser/100000", "keptBytesPerUnit"))])


def start_rows():
    for manner in ("blocking", "asynchronous"):
        goal = 1.5 if manner == "blocking" else None
        yield Row(f"start to idle, {manner}", Value(f"start/to idle/{manner}"),
                  [Against("three calls", Value(f"baseline/three calls/{manner}")),
                   Against("three calls, Qt's parser", Value(f"baseline/three calls and Qt's parser/{manner}"), goal),
                   Against("three calls, loading", Value(f"baseline/three calls and loading/{manner}"))])
        yield Row(f"rebuild after a change, {manner}", Value(f"start/rebuild/{manner}"),
                  [Against("one call", Value(f"baseline/one call/{manner}"))])
        yield Row(f"idle step, {manner}", Value(f"start/idle step/{manner}"), at_most=1000.0)
    for clients in (1, 10, 50):
        yield Row(f"storm of 20 changes, {clients} client processes", Value(f"start/storm/{clients}"))


def sharing_rows():
    yield Row("copying a `UnitManager`", Value("sharing/copy"))
    for threads in (1, 2):
        yield Row(f"`fromBaseUnit`, {threads} reading at once, wall time by calls", Value(f"sharing/fromBaseUnit/threads:{threads}"),
                  [Against("one look-up", Value(f"baseline/sharing/one look-up/threads:{threads}"))])


THEMES = [
    ("Conversion", conversion_rows),
    ("Nodes and arrays", node_rows),
    ("Hot loops", hot_loop_rows),
    ("Labels", label_rows),
    ("Loading", loading_rows),
    ("Start and change", start_rows),
    ("Sharing", sharing_rows),
]


class Run:
    """The medians of one run, by the registered names of the benchmarks."""

    # Suffixes that Google Benchmark appends to a name; those of WALL_TIME mean that wall time is reported.
    APPENDED = re.compile(r"/(iterations:\d+|repeats:\d+|real_time|manual_time)")
    WALL_TIME = re.compile(r"/(real_time|manual_time)")

    def __init__(self, document):
        self.context = document["context"]
        runs = document["benchmarks"]
        self.errors = sorted({f"{run['run_name']}: {run['error_message']}" for run in runs if run.get("error_occurred")})
        self.medians = {self.APPENDED.sub("", run["run_name"]): run
                        for run in runs if run.get("aggregate_name") == "median"}
        self.missing = set()

    def get(self, value):
        if isinstance(value, Sum):
            parts = [(factor, self.get(part)) for factor, part in value.parts]
            return None if any(number is None for _, number in parts) else sum(f * number for f, number in parts)
        run = self.medians.get(value.name)
        if run is None:
            self.missing.add(value.name)
            return None
        if value.counter:
            return run[value.counter] / value.per
        return self.time(run) / value.per

    def time(self, run):
        time = run["real_time"] if self.WALL_TIME.search(run["run_name"]) else run["cpu_time"]
        return time * NANOSECONDS[run["time_unit"]]


def time_text(nanoseconds):
    for unit, factor in (("s", 1e9), ("ms", 1e6), ("µs", 1e3)):
        if nanoseconds >= factor:
            return f"{nanoseconds / factor:.3g} {unit}"
    return f"{nanoseconds:.3g} ns"


def lead_text(lead):
    return f"{lead:.3g} times faster" if lead >= 1.0 else f"{1.0 / lead:.3g} times slower"


def value_text(value, number):
    return f"{number:,.0f} B" if value.counter else time_text(number)


def line(run, row):
    """The cells of a row; None if the run lacks one of its figures."""
    own = run.get(row.value)
    baselines = [(baseline, run.get(baseline.value)) for baseline in row.baselines]
    competitors = [(competitor, run.get(competitor.value)) for competitor in row.competitors]
    if own is None or any(number is None for _, number in baselines + competitors):
        return None

    ratios = [(baseline, own / number) for baseline, number in baselines]
    leads = [(competitor, number / own) for competitor, number in competitors]
    goals = [(f"≤ {baseline.goal:g} {baseline.label}", ratio <= baseline.goal) for baseline, ratio in ratios if baseline.goal]
    goals += [(f"≥ {competitor.goal:g} times faster than {competitor.label}", lead >= competitor.goal) for competitor, lead in leads if competitor.goal]
    if row.at_most:
        goals.append((f"≤ {value_text(row.value, row.at_most)}", own <= row.at_most))
    return [
        row.title,
        value_text(row.value, own),
        "<br>".join(f"{ratio:.2f} {baseline.label}" for baseline, ratio in ratios),
        "<br>".join(f"{lead_text(lead)} than {competitor.label}" for competitor, lead in leads),
        "<br>".join(text for text, _ in goals),
        "<br>".join("yes" if met else "**no**" for _, met in goals),
    ]


def markdown(header, lines):
    aligned = ["---"] + ["---:"] * (len(header) - 1)
    return "\n".join("| " + " | ".join(cells) + " |" for cells in [header, aligned, *lines])


def machine_text(context):
    return (f"{context['processor']} ({context['architecture']}), {context['num_cpus']} processors seen, "
            f"{context['system']}; GCC {context['compiler']}, Qt {context['qt']}, {context['build_type']} build; "
            f"load at the start {context['load_avg'][0]:.2g}; {context['date'][:10]}.")


def figures_text(run):
    parts = [f"Machine of these figures: {machine_text(run.context)}"]
    for title, rows in THEMES:
        lines = [cells for cells in (line(run, row) for row in rows()) if cells]
        parts.append(f"### {title}")
        parts.append(markdown(["what", "median", "ratio to baselines", "compared with competitors", "goal", "met"], lines))
    references = [[name, time_text(run.time(entry))] for name, entry in sorted(run.medians.items())
                  if name.startswith(("baseline/", "competitor/")) and "memory" not in name]
    parts.append("### Baselines and competitors")
    parts.append(markdown(["what", "median"], references))
    return "\n\n".join(parts)


def write_between_markers(path, text):
    before, begin, rest = path.read_text(encoding="utf-8").partition(BEGIN)
    _, end, after = rest.partition(END)
    if not begin or not end:
        sys.exit(f"{path}: no lines \"{BEGIN}\" and \"{END}\"")
    path.write_text(f"{before}{begin}\n{text}\n{end}{after}", encoding="utf-8")


def main():
    parser = argparse.ArgumentParser(description="Makes a table of a benchmark run.")
    parser.add_argument("run", type=Path, help="what the benchmarks wrote with --benchmark_out")
    parser.add_argument("--write", type=Path, metavar="FILE", help="Markdown file whose figures are replaced")
    arguments = parser.parse_args()

    run = Run(json.loads(arguments.run.read_text(encoding="utf-8")))
    text = figures_text(run)
    print(text)
    problems = run.errors + [f"{name}: not in the run" for name in sorted(run.missing)]
    for problem in problems:
        print(f"table.py: {problem}", file=sys.stderr)
    if problems:
        return 1
    if arguments.write:
        write_between_markers(arguments.write, text)
    return 0


if __name__ == "__main__":
    sys.exit(main())
