"""Programs on a pseudo-terminal."""

import fcntl
import os
import pty
import select
import signal
import struct
import subprocess
import termios
import time

# Seconds; as in WaitLimit.h.
WAIT_LIMIT = 60


class Terminal:
    """A program whose controlling terminal is a pseudo-terminal, until close()."""

    def __init__(self, command, columns=200, **options):
        """Streams that the options of subprocess.Popen do not name are the terminal."""
        self.descriptor, device = pty.openpty()
        fcntl.ioctl(device, termios.TIOCSWINSZ, struct.pack("HHHH", 50, columns, 0, 0))
        self.output = b""
        streams = {name: device for name in ("stdin", "stdout", "stderr")}
        self.process = subprocess.Popen(command, start_new_session=True, **{**streams, **options},
                                        preexec_fn=lambda: fcntl.ioctl(device, termios.TIOCSCTTY, 0))
        os.close(device)

    def send(self, text):
        data = text.encode("utf-8")
        while data:
            data = data[os.write(self.descriptor, data):]

    def wait_until(self, condition):
        """Collects output until the condition holds. Fails if it does not within the limit."""
        end = time.monotonic() + WAIT_LIMIT
        while not condition():
            if time.monotonic() > end:
                raise AssertionError(f"waited too long; the terminal shows {self.output!r}")
            self.collect(0.01)

    def collect(self, seconds):
        """Collects output, for which it waits some seconds. Returns whether there was any."""
        if not select.select([self.descriptor], [], [], seconds)[0]:
            return False
        try:
            self.output += os.read(self.descriptor, 65536)
        except OSError:  # the last program on the terminal has ended
            time.sleep(seconds)
            return False
        return True

    def wait_for_end(self):
        """The exit code of the program, after all its output has been collected."""
        self.wait_until(lambda: self.process.poll() is not None)
        while self.collect(0):
            pass
        return self.process.returncode

    def close(self):
        if self.process.poll() is None:
            os.killpg(self.process.pid, signal.SIGKILL)
            self.process.wait()
        os.close(self.descriptor)
