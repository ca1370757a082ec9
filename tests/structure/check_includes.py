"""No source of the library includes a higher layer, private headers of the platform, or files outside the tree."""

import re
import sys
from pathlib import Path

from project import Project, finish

# From the lowest layer up; a file may include its own layer and those before it. The first match is used.
LAYERS = [
    ("common", r"Diagnostics|FixedUnit|WriteResult|UnitManagerDefinitions|UnitManagerExport"),
    ("value conversion", r"UnitConversion/(Factory|ConverterConfiguration|PolynomialEvaluation|Value\w+)"),
    ("catalogue and texts", r"UnitConversion/\w+|UnitTextManagement/\w+"),
    ("core", r"UnitManagerCore|RowConversion"),
    ("facade", r"UnitManager|UnitManagerUnitTypeStringHandling"),
    ("device unit manager", r"UnitManagerDevice/UnitManagerDevice"),
    ("connector", r"UnitManagerConnector/\w+"),
    ("device integration", r"UnitManagerDevice/\w+"),
]
INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]', re.MULTILINE)
LIBRARY_INCLUDE = re.compile(r"(QtCore|QtDBus)/\w+|[a-z_]+")
PLATFORM_MAY_INCLUDE = {"UnitConversion/Factory.h"}


def layer_of(path):
    """The number of a file's layer, or None if it is in no layer."""
    stem = path.rpartition(".")[0]
    return next((index for index, (_, files) in enumerate(LAYERS) if re.fullmatch(files, stem)), None)


def includes_of(path):
    return INCLUDE.findall(path.read_text(encoding="utf-8"))


def sources_below(folder):
    return sorted(str(path.relative_to(folder)) for path in folder.rglob("*") if path.suffix in {".h", ".cpp"})


def check_library_file(name, includes, sources, platform_headers):
    """The faults in the includes of a file in src/."""
    layer = layer_of(name)
    if layer is None:
        yield f"src/{name}: does not belong to a layer"
        return
    for bracket, include in includes:
        if bracket == "<":
            if not LIBRARY_INCLUDE.fullmatch(include):
                yield f"src/{name}: <{include}> is neither Qt's nor the standard library's"
        elif include in platform_headers:
            continue
        elif include not in sources:
            yield f"src/{name}: \"{include}\" is neither a file of the library nor a public header of the platform"
        elif layer_of(include) is not None and layer_of(include) > layer:
            yield f"src/{name} ({LAYERS[layer][0]}): reaches up to \"{include}\" ({LAYERS[layer_of(include)][0]})"


def check_installed_header(name, text):
    """The members of an installed header that users cannot use."""
    if "LogContext" in text:
        yield f"src/{name}: is installed and mentions the internal LogContext"
    access = "public"
    for line in text.splitlines():
        if match := re.fullmatch(r"\s*(public|protected|private)( Q_SLOTS)?:", line):
            access = match[1]
        elif re.match(r"(class|struct) ", line):
            access = "private" if line.startswith("class") else "public"
        if "_NO_EXPORT" in line and access != "private":
            yield f"src/{name}: offers a function that is not exported: {line.strip()}"


def main():
    project = Project(sys.argv[1])
    source_root, platform_root = project.source / "src", project.source / "platform"
    export_header = project.facts["exportHeader"]
    sources = sources_below(source_root)
    platform_files = sources_below(platform_root)
    platform_headers = {header for headers in project.platform_headers.values() for header in headers}
    problems = []

    built = set(project.facts["librarySources"])
    seen = {name for name in sources if name.endswith(".cpp")}
    problems += [f"src/{name}: no source of the library" for name in sorted(seen - built)]
    problems += [f"src/{name}: listed, but not there" for name in sorted(built - seen)]
    listed = {f"{folder}/{header}" for folder, headers in project.platform_headers.items() for header in headers}
    problems += [f"platform/{name}: listed, but not there" for name in sorted(listed - set(platform_files))]

    for name in sources:
        includes = includes_of(source_root / name)
        problems += check_library_file(name, includes, {*sources, export_header}, platform_headers)
        if name in project.installed_headers:
            problems += check_installed_header(name, (source_root / name).read_text(encoding="utf-8"))
            internal = {header for header in sources if header not in project.installed_headers}
            problems += [f"src/{name}: is installed and includes the internal \"{include}\""
                         for _, include in includes if include in internal]

    library_names = {*sources, export_header}
    for name in platform_files:
        problems += [f"platform/{name}: includes \"{include}\" of the library"
                     for _, include in includes_of(platform_root / name)
                     if include in library_names - PLATFORM_MAY_INCLUDE]
    internal = {path.rpartition("/")[2] for path in platform_files} - platform_headers
    problems += [f"platform/{name}: is installed and includes the internal \"{include}\"" for name in sorted(listed)
                 for _, include in includes_of(platform_root / name) if include in internal]
    finish(problems, f"{len(sources)} files below src/, {len(platform_files)} below platform/, "
                     f"{len(platform_headers)} public headers of the platform")


main()
