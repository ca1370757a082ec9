"""Commands of the pages that no test can run. Each has a reason, and a check of what can be checked."""

import re
import shlex
import subprocess
from pathlib import Path

SYSTEMCTL_VERBS = {"daemon-reload", "edit", "enable", "reload", "restart", "start", "stop"}


class NotRun:
    """Finds the rule for a command, and applies its check."""

    def __init__(self, root, installed):
        self.root = root
        self.installed = installed
        self.rules = [
            (r"\./dev\b", "builds and tests the project", self.check_dev),
            (r"sudo\b", "changes the machine", self.check_administration),
            (r"journalctl\b", "reads the machine's log", self.check_units),
            (r"(cmake|ctest)\b.*\bbuild/(release|library|platform|contract)\b", "builds the project", self.check_cmake),
            (r"cmake\b.* (/usr/share/doc/unitmanager/|measuring-device$)", "needs a package, whose test runs it",
             self.check_example),
            (r"cmake --preset\b", "builds the project", self.check_preset),
            (r"cmake --build --preset\b", "builds the project", self.check_preset),
            (r"(build/(release|library|contract)|benchmarks|tests/armhf)/", "needs a complete build", self.check_program),
            (r"readelf\b.*build/library/", "needs a complete build", self.check_program),
        ]

    def reason(self, command):
        """Why a command is not run, or None. Fails if the command cannot be right."""
        for pattern, reason, check in self.rules:
            if re.match(pattern, command):
                subprocess.run(["bash", "-n", "-c", command], check=True)
                check(shlex.split(command))
                return reason
        return None

    def require(self, condition, problem):
        if not condition:
            raise AssertionError(problem)

    def source(self, name):
        return (self.root / name).read_text(encoding="utf-8")

    def check_dev(self, words):
        usage = subprocess.run([self.root / "dev", "help"], stdout=subprocess.PIPE, check=True, text=True).stdout
        self.require(re.search(rf"^  {words[1]}\b", usage, re.MULTILINE), f"./dev has no word {words[1]}")
        for option in [word for word in words[2:] if word.startswith("-")]:
            self.require(option in usage, f"./dev {words[1]} has no option {option}")

    def check_administration(self, words):
        program, *arguments = words[1:]
        if program == "apt":
            packages = re.findall(r"^Package: (.*)$", self.source("debian/control"), re.MULTILINE)
            for name in re.findall(r"\./([\w-]+?)_\S*\.deb", " ".join(arguments)):
                self.require(name in packages, f"there is no package {name}")
        elif program == "systemctl":
            self.require(arguments[0] in SYSTEMCTL_VERBS, f"systemctl has no verb {arguments[0]}")
            self.check_units(arguments)
        elif program == "cmake":
            self.check_cmake([program, *arguments])
        elif program in ("install", "cp"):
            folder = re.search(r"SYSCONFDIR}(/\w+)", self.source("service/CMakeLists.txt"))[1]
            self.require(arguments[-1].rstrip("/") == "/etc" + folder, f"no program reads {arguments[-1]}")
        else:
            self.require(words == ["sudo", "systemd-sysusers"], f"no check for sudo {program}")

    def check_units(self, words):
        units = [word for word in words if word.startswith("configuration-file-service")]
        for unit in units:
            name = unit if "." in unit else unit + ".service"
            self.require((self.installed / "lib/systemd/system" / name).exists(), f"unknown systemd unit {name}")
        self.require(units or words[-1] in ("daemon-reload", "dbus"), f"unknown systemd unit in {words}")

    def check_example(self, words):
        folders = [word for word in words if word.endswith("measuring-device")]
        self.require(folders and (self.root / "examples" / Path(folders[0]).name).is_dir(), f"no example in {words}")

    def check_preset(self, words):
        preset = words[words.index("--preset") + 1]
        self.require(f'"name": "{preset}"' in self.source("CMakePresets.json"), f"there is no preset {preset}")
        self.check_cmake(words)

    def check_cmake(self, words):
        lists = "".join(path.read_text(encoding="utf-8") for path in self.root.glob("**/CMakeLists.txt")
                        if "build" not in path.relative_to(self.root).parts[:1])
        for name in re.findall(r"-D(\w+)=", " ".join(words)):
            self.require(name.startswith("CMAKE_") or re.search(rf"\b{name}\b", lists), f"no project reads {name}")
        if "-S" in words:
            folder = words[words.index("-S") + 1].replace("UNITMANAGER", ".")
            candidates = [self.root / folder, self.root / "examples" / folder]
            self.require(any((path / "CMakeLists.txt").is_file() for path in candidates), f"no project in {folder}")

    def check_program(self, words):
        for word in words:
            path = re.sub(r"^build/(release|library|contract)/", "", word)
            is_script = word.startswith(("benchmarks/", "tests/armhf/"))
            if path == word and not is_script and not (self.root / path).exists():
                continue
            folder, _, program = path.rpartition("/")
            lists = self.root / (folder or "platform-contract") / "CMakeLists.txt"
            target = re.escape(program.removeprefix("lib").removesuffix(".so"))
            is_built = lists.is_file() and re.search(rf"(?<![\w-]){target}(?![\w-])", lists.read_text("utf-8"))
            self.require((self.root / path).is_file() or is_built, f"there is no program {word}")
