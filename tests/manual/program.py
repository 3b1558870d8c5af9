"""The command as the checks of the manual run it."""

import os
import re
import shlex
import shutil
import subprocess
from pathlib import Path

# What a page for browsers needs to have a session put into it; the real one is tried in tests/web.
PAGE = '<script type="application/json" id="session">{}</script>'


class Program:
    """The command, run in a home of its own, beside the tables that the manual speaks of."""

    def __init__(self, path, home, tables=()):
        self._path, self._home = os.path.abspath(path), home
        self._known = {}
        for table in tables:
            shutil.copy(table, home)
        self._page = os.path.join(home, "page-of-the-check.html")
        Path(self._page).write_text(PAGE, encoding="utf-8")

    def lines(self, *arguments):
        result = subprocess.run(
            [self._path, *arguments],
            capture_output=True,
            text=True,
            check=False,
            cwd=self._home,
            env={"HOME": self._home, "PATH": os.defpath, "VEYRUNA_PAGE": self._page},
        )
        return [line.rstrip() for line in (result.stdout + result.stderr).splitlines()]

    def known_lines(self, command):
        """What the command of an example wrote, which is run once."""
        if command not in self._known:
            self._known[command] = self.lines(*shlex.split(command)[1:])
        return self._known[command]

    def has(self, file):
        return os.path.exists(os.path.join(self._home, file))

    def clear(self, files):
        for path in (os.path.join(self._home, file) for file in files):
            if os.path.isdir(path):
                shutil.rmtree(path)
            elif os.path.exists(path):
                os.remove(path)

    def commands(self):
        text = "\n".join(self.lines("--help"))
        return re.findall(r"^  ([a-z][a-z-]*)  ", text.split("Commands:")[1], re.MULTILINE)

    def options(self):
        """Every name of an option, in the help of the program and of each command."""
        helps = [self.lines("--help")] + [self.lines("help", name) for name in self.commands()]
        names = set()
        for line in (line for text in helps for line in text):
            option = re.match(r"  (-\S+)", line)
            names |= set(option.group(1).split(",")) if option else set()
        return names
