"""The library's information for the loader: its versioned name, and that it needs only permitted libraries."""

import re
import sys

from project import Project, finish, run

NAME = "libunitmanager.so.1"
PLATFORM = "ConfigurationTree|DeviceSupport|StateMachine|DBusConnector|ProcessData|DependencyWalker"
ALLOWED = re.compile(
    rf"libQt5(Core|DBus)\.so\.5|libDevicePlatform({PLATFORM})\.so\.1|lib(stdc\+\+|m|c)\.so\.6|libgcc_s\.so\.1")
SANITIZER = re.compile(r"lib(asan|ubsan|tsan)\.so\.\d+")
REQUIRED = {"libQt5Core.so.5", "libDevicePlatformConfigurationTree.so.1", "libDevicePlatformDeviceSupport.so.1"}


def main():
    project = Project(sys.argv[1])
    section = run(["readelf", "-d", "-W", project.library])
    names = re.findall(r"\(SONAME\).*\[(.*)\]", section)
    needed = re.findall(r"\(NEEDED\).*\[(.*)\]", section)
    problems = [] if names == [NAME] else [f"SONAME {names} instead of {NAME}"]
    for library in needed:
        if not ALLOWED.fullmatch(library) and not (project.facts["sanitized"] and SANITIZER.fullmatch(library)):
            problems.append(f"needs {library}")
    problems += [f"does not need {library}" for library in sorted(REQUIRED - set(needed))]
    finish(problems, f"{NAME} needs {' '.join(needed)}")


main()
