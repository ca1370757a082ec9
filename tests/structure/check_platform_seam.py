"""The library builds against an installed platform package, without configuring platform/."""

import json
import re
import sys

from project import Project, finish, run

REPLY = ".cmake/api/v1"


def configured_targets(build):
    """Name -> folder relative to the project's root, for every target of a build tree with a code model query."""
    reply = build / REPLY / "reply"
    (model,) = reply.glob("codemodel-v2-*.json")
    configuration = json.loads(model.read_text(encoding="utf-8"))["configurations"][0]
    folders = [directory["source"] for directory in configuration["directories"]]
    return {target["name"]: folders[target["directoryIndex"]] for target in configuration["targets"]}


def main():
    project = Project(sys.argv[1])
    build = project.scratch / "platform-seam"
    (build / REPLY / "query" / "codemodel-v2").mkdir(parents=True, exist_ok=True)
    run([project.facts["cmake"], "--fresh", "-S", project.source, "-B", build, "-G", project.facts["generator"],
         *project.cmake_options(), f"-DCMAKE_CXX_COMPILER_LAUNCHER={project.facts['compilerLauncher']}",
         "-DCMAKE_BUILD_TYPE=",
         "-DUNITMANAGER_PLATFORM_PACKAGE=DevicePlatform", "-DBUILD_TESTING=OFF", "-DUNITMANAGER_BUILD_BENCHMARKS=OFF"])
    run([project.facts["cmake"], "--build", build, "--target", "unitmanager"])

    targets = configured_targets(build)
    problems = [f"target {name} of {folder} is configured" for name, folder in sorted(targets.items())
                if folder.split("/")[0] == "platform" or name.startswith("DevicePlatform")]
    if targets.get("unitmanager") != "src":
        problems.append("the library is not a target of src/")

    section = run(["readelf", "-d", "-W", build / "src" / "libunitmanager.so"])
    if "libDevicePlatformConfigurationTree.so.1" not in re.findall(r"\(NEEDED\).*\[(.*)\]", section):
        problems.append("the library is not linked to the package")
    if not any(str(project.library_dir) in path.split(":") for path in re.findall(r"\(RUNPATH\).*\[(.*)\]", section)):
        problems.append("the library does not look for the package where it is installed")

    flags = project.pkg_config(build / "src", "--cflags")
    platform_include = project.include_dir / "device-platform" / "ConfigurationTree"
    if f"-I{platform_include}" not in flags.split():
        problems.append(f"pkg-config does not name {platform_include}")
    finish(problems, f"{len(targets)} targets, none of platform/")


main()
