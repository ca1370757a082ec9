"""A shell session of a reader: commands in one folder, on a private bus, whose output appears in one place."""

import os
import queue
import signal
import subprocess
import tempfile
import threading
import time
from pathlib import Path

# Seconds until an output arrives, and until a command ends, which may be a build on a busy machine.
WAIT_LIMIT = 60
COMMAND_LIMIT = 400


def end(process):
    """Ends a process and those that it has started."""
    os.killpg(process.pid, signal.SIGKILL)
    process.wait()


class Session:
    """Commands of one page. The output of programs in the background is mixed with that of the commands."""

    def __init__(self, folder, environment):
        self.folder = folder
        self.environment = {**os.environ, **environment}
        self.output = queue.Queue()
        self.processes = []
        self.private = tempfile.TemporaryDirectory()
        address = "unix:path=" + str(Path(self.private.name) / "bus")
        # The session bus and the system bus are the same one: a page may use either.
        self.environment.update(DBUS_SESSION_BUS_ADDRESS=address, DBUS_SYSTEM_BUS_ADDRESS=address)
        bus = subprocess.Popen(
            ["dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address", f"--address={address}"],
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, start_new_session=True)
        bus.stdout.readline()
        bus.stdout.close()
        self.processes.append(bus)

    def close(self):
        for process in reversed(self.processes):
            end(process)
        self.private.cleanup()

    def run(self, command, line_count):
        """Runs a command, or starts it if it ends with "&".

        Returns its exit code (0 in the background), and the output: everything that was printed until the command
        ended and line_count lines have arrived.
        """
        in_background = command.endswith("&")
        process = subprocess.Popen(
            ["bash", "-c", command.rstrip("& ")], cwd=self.folder, env=self.environment, start_new_session=True,
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        reader = threading.Thread(target=self.forward, args=[process.stdout], daemon=True)
        reader.start()
        exit_code = 0
        if in_background:
            self.processes.append(process)
        else:
            try:
                exit_code = process.wait(timeout=COMMAND_LIMIT)
            except subprocess.TimeoutExpired:
                end(process)
                exit_code = process.returncode
            reader.join(WAIT_LIMIT)
        return exit_code, "".join(self.lines(line_count))

    def forward(self, stream):
        with stream:
            for line in stream:
                self.output.put(line.decode("utf-8"))

    def lines(self, count):
        deadline = time.monotonic() + WAIT_LIMIT
        lines = []
        while len(lines) < count:
            try:
                lines.append(self.output.get(timeout=max(0, deadline - time.monotonic())))
            except queue.Empty:
                break
        while not self.output.empty():
            lines.append(self.output.get())
        return lines
