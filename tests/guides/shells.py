"""Shells as a person has them before them: typing, and the Tab key."""

import os
import pty
import re
import select
import subprocess
import termios
from struct import pack
from fcntl import ioctl

PROMPT = "ready> "
END = "that was all"
SAY_END = END.replace(" ", "  ")  # where it is typed it is not taken for said

# A control character that says, when its turn comes, that all before it was answered.
ASK = "\x07"
TAB = "\t"
KILL_LINE = "\x15"

SETUP = {
    "bash": (
        ["bash", "--norc", "--noprofile", "-i"],
        f"""
bind 'set show-all-if-ambiguous on'; bind 'set page-completions off'
bind 'set completion-query-items -1'; bind 'set bell-style none'
bind 'set enable-bracketed-paste off'
bind -x '"\\C-g": echo {SAY_END}'
source '{{folder}}/veyruna'
PS1='{PROMPT}'
""",
    ),
    "zsh": (
        ["zsh", "-f", "-i"],
        f"""
fpath=('{{folder}}' $fpath); autoload -Uz compinit; compinit -u -D
LISTMAX=100000; setopt no_beep no_prompt_sp no_auto_menu
said() {{{{ zle -I; print -r -- {SAY_END} }}}}; zle -N said; bindkey '^G' said
PS1='{PROMPT}'
""",
    ),
}


def plain(shown, instead=""):
    """Without what moves the cursor and sets colours."""
    return re.sub(r"\x1b\[[0-9;?]*[A-Za-z]", instead, shown)


class Shell:
    """An interactive shell in a wide terminal of its own."""

    def __init__(self, name, folder, environment):
        command, setup = SETUP[name]
        self._process, self._terminal = pty.fork()
        if self._process == 0:
            os.execvpe(command[0], command, dict(environment, TERM="xterm", PS1="> "))
        ioctl(self._terminal, termios.TIOCSWINSZ, pack("HHHH", 200, 400, 0, 0))
        for line in setup.strip().format(folder=folder).splitlines():
            self._write(line + "\r")
        self.press("")

    def _write(self, keys):
        os.write(self._terminal, keys.encode())

    def _answer(self, keys):
        self._write(keys + ASK)
        shown = ""
        while not re.search(END + ".*" + PROMPT, plain(shown), re.DOTALL):
            if not select.select([self._terminal], [], [], 60)[0]:
                raise RuntimeError("the shell does not answer; it showed:\n" + shown)
            shown += os.read(self._terminal, 65536).decode(errors="replace")
        return shown

    def press(self, keys):
        """What the shell shows until it has answered the keys, on an empty line."""
        self._answer(KILL_LINE)
        return self._answer(keys)

    def offers(self, line):
        """Every word that is shown when Tab is pressed behind the line."""
        return set(plain(self.press(line + TAB), " ").split())

    def completes(self, line):
        """The text that Tab makes of the line, with what was shown."""
        return plain(self.press(line + TAB))

    def close(self):
        os.close(self._terminal)
        os.waitpid(self._process, 0)


class Fish:
    """Fish tells what it would offer without a terminal."""

    def __init__(self, folder, environment):
        self._source = f"source '{folder}/veyruna.fish'; "
        self._environment = environment

    def lines(self, line):
        command = self._source + "complete -C " + "'" + line.replace("'", "\\'") + "'"
        done = subprocess.run(
            ["fish", "--no-config", "-c", command],
            env=self._environment,
            capture_output=True,
            text=True,
            check=True,
        )
        if done.stderr:
            raise RuntimeError(done.stderr)
        return [shown.split("\t")[0] for shown in done.stdout.splitlines()]

    def offers(self, line):
        return set(self.lines(line))

    def completes(self, line):
        return "\n".join(self.lines(line))

    def close(self):
        pass
