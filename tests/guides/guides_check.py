"""Whoever looks an option up finds it: in the help, the manual page, the manual and in every shell.

    guides_check.py VEYRUNA VEYRUNA_ASTRO GUIDES_PROGRAM GUIDES_FOLDER MANUAL_FOLDER WINDOW_PAGE

What there is is read off the help that the command prints. Prints a line for each fault; exit status 1
where there is one."""

import json
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

from shells import Fish, Shell

PLACES = ["Ebb", "Saint Orra", "Old Mill, by night", 'The "Ash"']


def output(*command, **more):
    return subprocess.run(command, capture_output=True, text=True, check=True, **more).stdout


def options_in(help_text):
    """The names at the beginning of lines of help: "-h,--help", "--kind KIND"."""
    names = set()
    for line in help_text.splitlines():
        if found := re.match(r"\s+(-\S+)", line):
            names |= set(found[1].split(","))
    return names


def options_of_man(text):
    """Those that head a paragraph: "       -h, --help"."""
    heads = re.findall(r"^ {7}(-.*)$", text, re.MULTILINE)
    return {name.split()[0] for head in heads for name in head.split(", ") if name.startswith("-")}


class Check:
    def __init__(self, veyruna):
        self.faults = []
        self.general = options_in(output(veyruna, "--help"))
        listed = output(veyruna, "--help").split("Commands:")[1].split("\n\n")[0]
        self.commands = re.findall(r"^  (\S+)", listed, re.MULTILINE)
        self.own = {
            command: options_in(output(veyruna, "help", command).split("Example:")[0])
            - {"-h", "--help"}
            for command in self.commands
        }

    def expect(self, what, found, expected):
        if set(found) != set(expected):
            self.faults.append(f"{what}: {sorted(found)} in place of {sorted(expected)}")

    def man_pages(self, folder, window_page, astro):
        command_page = folder / "man" / "veyruna.1"
        text = {}
        for page in [command_page, window_page]:
            done = subprocess.run(
                ["man", "--warnings", "-l", str(page)],
                env=dict(os.environ, MANWIDTH="100", LC_ALL="C.UTF-8", MANROFFSEQ=""),
                capture_output=True,
                text=True,
                check=True,
            )
            text[page] = done.stdout
            if done.stderr:
                self.faults.append(f"{page.name}: {done.stderr}")
        general, commands = text[command_page].split("\nCOMMANDS\n")
        self.expect(
            "veyruna(1), options", options_of_man(general.split("\nOPTIONS\n")[1]), self.general
        )
        parts = re.split(r"^   (\S+).*$", commands.split("\nEXIT STATUS\n")[0], flags=re.MULTILINE)
        self.expect("veyruna(1), commands", parts[1::2], self.commands)
        for name, part in zip(parts[1::2], parts[2::2]):
            self.expect(f"veyruna(1), {name}", options_of_man(part), self.own.get(name, set()))
        said = set(re.findall(r"(?<![\w-])--?[a-z]+", output(astro, "--help")))
        self.expect(
            "veyruna-astro(1)", options_of_man(text[window_page].split("\nOPTIONS\n")[1]), said
        )

    def window_arguments(self, astro, environment):
        """Nobody opens the window by mistyping an option."""
        screenless = dict(environment, QT_QPA_PLATFORM="offscreen")
        if output(astro, "-h") != output(astro, "--help"):
            self.faults.append("veyruna-astro -h is not its --help")
        for arguments in (["--hepl"], ["-style", "fusion", "sky.json", "--help"], [""]):
            wrong = "sky.json" if "sky.json" in arguments else arguments[0]
            done = subprocess.run(
                [astro, *arguments], env=screenless, capture_output=True, text=True, check=False
            )
            sentence = f'veyruna-astro: "{wrong}" is no option; veyruna-astro --help lists them'
            if (done.returncode, done.stderr.splitlines()[-1:]) != (2, [sentence]):
                self.faults.append(f"veyruna-astro {arguments}: {done}")

    def manual(self, folder, guides):
        page = (folder / "command-line.html").read_text(encoding="utf-8")
        found = re.search(r"<!-- options -->\n(.*)<!-- /options -->", page, re.DOTALL)
        table = output(guides, "html")
        if not found or found[1] != table:
            marked = f"<!-- options -->\n{table}<!-- /options -->"
            received = folder / "command-line.html.received"
            received.write_text(
                page.replace(found[0], marked) if found else marked, encoding="utf-8"
            )
            self.faults.append(
                "command-line.html: the options are not those of the command; to accept them: "
                "tests/accept ../docs/manual/command-line.html"
            )
            return
        for command in [None, *self.commands]:
            for option in self.general if command is None else self.own[command]:
                whose = "all commands" if command is None else f"<code>{command}</code>"
                rows = [
                    row
                    for row in found[1].splitlines()
                    if re.search(rf"<code>{option}[ <]", row.split("</th>")[0]) and whose in row
                ]
                if len(rows) != 1:
                    self.faults.append(
                        f"command-line.html: {option} of {whose} in {len(rows)} rows"
                    )

    def shell(self, name, shell):
        def options_offered(line):
            return {word for word in shell.offers(line) if re.fullmatch(r"--?[a-z][a-z-]*", word)}

        long_ones = {option for option in self.general if option.startswith("--")}
        self.expect(f"{name}, options", options_offered("veyruna --"), long_ones)
        shown = shell.offers("veyruna --year 720 ")
        self.expect(f"{name}, commands", shown & set(self.commands), self.commands)
        for command in self.commands:
            own = {option for option in self.own[command] if option.startswith("--")}
            line = f"veyruna --location 'Saint Orra' --day=3 {command} --"
            self.expect(f"{name}, {command}", options_offered(line), long_ones | own)
        for option in ["-o", "-h"]:
            if option not in shell.offers("veyruna -"):
                self.faults.append(f"{name} does not offer {option}")
        for line, expected in [
            ("veyruna --month D", "Dovri"),
            ("veyruna --month=D", "Dovri"),
            ("veyruna moment --month D", "Dovri"),
            ("veyruna star-map --format svg,pd", "svg,pdf"),
            ("veyruna events --kind eclipse,sea", "eclipse,season"),
            ("veyruna events --kind=eclipse,sea", "eclipse,season"),
            ("veyruna schema pos", "positions"),
            ("veyruna help con", "conjunctions"),
            ("veyruna moment -o given-f", "given-file.txt"),
            ("veyruna batch given-f", "given-file.txt"),
            ("veyruna search -f given-f", "given-file.txt"),
            ("veyruna all --out given-d", "given-drawer/"),
        ]:
            if expected not in shell.completes(line):
                self.faults.append(f"{name} does not make {expected} of {line}")
        if "given" in shell.completes("veyruna --year g"):
            self.faults.append(f"{name} offers a file for a year")
        shown = re.sub(r"\\(.)", r"\1", shell.completes("veyruna moment --location Sai"))
        if "Saint Orra" not in shown:
            self.faults.append(f"{name} does not offer a saved place")
        for place in PLACES:
            word = shell.completes(f"veyruna --location {place[:5].split(',')[0][:3]}")
            if place[:3].isalpha() and place not in re.sub(r"\\(.)", r"\1", word):
                self.faults.append(f"{name} does not offer {place}")
        shell.close()


def main():
    veyruna, astro, guides, folder, manual, window_page = (
        Path(argument) for argument in sys.argv[1:]
    )
    with tempfile.TemporaryDirectory() as scratch:
        home = Path(scratch)
        (home / "VeyrunaAstro").mkdir()
        places = [
            {
                "id": f"00000000-0000-4000-8000-00000000000{number}",
                "name": name,
                "latitude": 0.1,
                "longitude": 0.2,
            }
            for number, name in enumerate(PLACES)
        ]
        (home / "VeyrunaAstro" / "locations.json").write_text(json.dumps(places), encoding="utf-8")
        (home / "given-file.txt").touch()
        (home / "given-drawer").mkdir()
        environment = dict(
            os.environ,
            PATH=f"{veyruna.parent}:{os.environ['PATH']}",
            HOME=scratch,
            XDG_DATA_HOME=scratch,
            LC_ALL="C.UTF-8",
        )
        check = Check(veyruna)
        check.man_pages(folder, window_page, astro)
        check.window_arguments(astro, environment)
        check.manual(manual, guides)
        os.chdir(scratch)
        completion = folder / "completion"
        for name in ["bash", "zsh"]:
            check.shell(name, Shell(name, completion, environment))
        check.shell("fish", Fish(completion, environment))
    print("\n".join(check.faults))
    sys.exit(1 if check.faults else 0)


if __name__ == "__main__":
    main()
