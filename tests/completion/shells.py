"""Interactive shells on a pseudo-terminal, without any configuration of the user."""

import pathlib
import re
import subprocess
import sys

sys.path.append(str(pathlib.Path(__file__).resolve().parents[1] / "support"))

from terminal import Terminal  # noqa: E402 (needs the path above)

PROMPT = "READY> "
# Ctrl-X p saves the line, Ctrl-X k empties it.
SAVE = "\x18p"
EMPTY = "\x18k"


class Shell:
    """An interactive shell that waits for keys."""

    def __init__(self, prefix, folder, environment):
        """The program and its completion are installed below prefix; the shell works in an existing folder."""
        self.lines = folder / "lines"
        self.lines.write_bytes(b"")
        self.environment = {name: value for name, value in environment.items() if name not in ("ENV", "INPUTRC")}
        self.environment.update(SAVED_LINES=str(self.lines), PS1=PROMPT, TERM="dumb", HOME=str(folder),
                                ZDOTDIR=str(folder), XDG_DATA_DIRS=str(prefix / "share"),
                                PATH=f"{prefix / 'bin'}:{environment['PATH']}")
        setup = folder / "setup"
        setup.write_text(self.setup.format(prefix=prefix), encoding="utf-8")
        self.terminal = Terminal(self.command, cwd=folder, env=self.environment)
        self.wait_for_prompts(1)
        self.terminal.send(f". '{setup}'\r")
        self.wait_for_prompts(2)

    def wait_for_prompts(self, count):
        self.terminal.wait_until(lambda: self.terminal.output.count(PROMPT.encode()) >= count)

    def close(self):
        self.terminal.close()

    def line_after(self, keys):
        """The command line after the keys, which begin with an empty one."""
        count = len(self.saved_lines())
        # The second line is saved when the shell has shown the empty one.
        self.terminal.send(keys + SAVE + EMPTY + SAVE)
        self.terminal.wait_until(lambda: len(self.saved_lines()) == count + 2)
        return self.saved_lines()[count]

    def saved_lines(self):
        return self.lines.read_bytes().split(b"\0")[:-1]

    def words_of(self, line):
        """The words as which the shell reads a command line of the program."""
        script = "unitmanager() { printf '%s\\0' \"$@\"; }; eval \"$1\""
        result = subprocess.run([self.name, *self.options, "-c", script, self.name, line], env=self.environment,
                                check=True, stdout=subprocess.PIPE)
        return result.stdout.decode("utf-8").split("\0")[:-1]

    def words_after(self, keys):
        return self.words_of(self.line_after(keys))

    def output_after(self, keys, mark):
        """What the terminal shows after the keys, up to a mark and all that comes with it."""
        self.terminal.collect(0)
        start = len(self.terminal.output)
        self.terminal.send(keys)
        self.terminal.wait_until(lambda: mark.encode() in self.terminal.output[start:])
        self.line_after("")
        self.terminal.collect(0)
        return self.terminal.output[start:].decode("utf-8")


class Bash(Shell):
    name = "bash"
    options = ["--norc", "--noprofile"]
    not_comparable = []
    command = [name, *options, "-i"]
    # Loads the completion on demand.
    setup = r"""
. /usr/share/bash-completion/bash_completion
save_line() {{ printf '%s\0' "$READLINE_LINE" >>"$SAVED_LINES"; }}
bind -x '"\C-xp": save_line'
bind '"\C-xk": kill-whole-line'
bind 'set completion-query-items 0'
bind 'set page-completions off'
"""

    def listed_after(self, line):
        """The words that Tab lists."""
        output = self.output_after(f"{line}\t\t", f"\n{PROMPT}")
        return output.split("\r\n", 1)[1].partition(f"\n{PROMPT}")[0].split()


class Zsh(Shell):
    name = "zsh"
    options = ["-f"]
    # In double quotes, only an interactive zsh removes the backslash before an exclamation mark.
    not_comparable = [("i!j", '"')]
    command = [name, *options, "-i"]
    setup = r"""
fpath=('{prefix}/share/zsh/site-functions' $fpath)
autoload -Uz compinit
compinit -D -u
save-line() {{ print -rn -- "$BUFFER" >>"$SAVED_LINES"; printf '\0' >>"$SAVED_LINES"; }}
zle -N save-line
bindkey '^Xp' save-line
bindkey '^Xk' kill-whole-line
"""

    def listed_after(self, line):
        """The words that Tab lists with their meanings. Words with the same meaning share a line."""
        output = self.output_after(f"{line}\t", " -- ")
        rows = re.findall(r"^(\S.*?) +-- ", output, re.MULTILINE)
        return [word for row in rows for word in row.split()]
