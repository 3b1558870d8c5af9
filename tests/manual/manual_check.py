"""Reads the manual as a reader would follow it and names what is wrong: links, pictures and anchors
that lead nowhere, pages nobody can reach, anything fetched from elsewhere, examples that the program
does not write, and options or commands of `veyruna` that the page of the command line lacks or invents.

    manual_check.py MANUAL_FOLDER VEYRUNA

Prints a line for each fault; exit status 1 where there is one."""

import os
import re
import shlex
import sys
import tempfile
from html.parser import HTMLParser
from pathlib import Path

from program import Program

VOID = {"area", "base", "br", "col", "hr", "img", "input", "link", "meta", "source", "wbr"}


class Page(HTMLParser):
    """What one page holds: anchors, links, sources, examples and the first cells of its tables."""

    def __init__(self, path):
        super().__init__(convert_charrefs=True)
        self.anchors, self.links, self.sources, self.faults = set(), [], [], []
        self.examples, self.writings, self.first_cells = [], [], []
        self.neighbours = {}
        self._open, self._cells_in_row, self._collects = [], 0, None
        self.feed(path.read_text(encoding="utf-8"))
        self.close()
        self.faults += [f"<{tag}> is not closed" for tag in self._open]

    def handle_starttag(self, tag, attributes):
        given = dict(attributes)
        if tag not in VOID:
            self._open.append(tag)
        if tag == "script" or any(name.startswith("on") for name in given):
            self.faults.append("holds a script")
        if "id" in given:
            if given["id"] in self.anchors:
                self.faults.append(f"has two anchors #{given['id']}")
            self.anchors.add(given["id"])
        if tag == "a" and "href" in given:
            self.links.append(given["href"])
            if "rel" in given:
                self.neighbours[given["rel"]] = given["href"]
        if tag == "link":
            self.sources.append(given["href"])
        if "src" in given:
            self.sources.append(given["src"])
        if tag == "img" and not given.get("alt"):
            self.faults.append(f"says nothing in place of the picture {given.get('src')}")
        if tag == "tr":
            self._cells_in_row = 0
        if tag == "td" or given.get("scope") == "row":
            self._cells_in_row += 1
            if self._cells_in_row == 1:
                self.first_cells.append("")
                self._collects = "cell"
        if tag == "pre" and "data-command" in given:
            self.examples.append([given["data-command"], ""])
            self._collects = "example"
        if tag == "kbd" and "pre" in self._open:
            self.examples.append(["", ""])
            self._collects = "command"
        if tag == "pre" and "data-writes" in given:
            self.writings.append([given["data-writes"], ""])
            self._collects = "writing"

    def handle_endtag(self, tag):
        if tag in VOID:
            return
        if not self._open or self._open.pop() != tag:
            self.faults.append(f"closes <{tag}> out of turn in line {self.getpos()[0]}")
        if tag in ("td", "th", "pre"):
            self._collects = None
        if tag == "kbd" and self._collects == "command":
            self._collects = "line end"

    def handle_data(self, text):
        if self._collects == "cell":
            self.first_cells[-1] += text
        elif self._collects == "command":
            self.examples[-1][0] += text
        elif self._collects == "line end":
            self.examples[-1][1] = text.removeprefix("\n")
            self._collects = "example"
        elif self._collects == "example":
            self.examples[-1][1] += text
        elif self._collects == "writing":
            self.writings[-1][1] += text


def check_links(manual, pages):
    """Faults of links and sources, and the pages that no way leads to from index.html."""
    followed = {name: set() for name in pages}
    for name, page in pages.items():
        for address in page.links + page.sources:
            if re.match(r"[a-z]+:|//", address):
                yield f"{name} leads out of the manual: {address}"
                continue
            file, _, anchor = address.partition("#")
            target = os.path.normpath(file or name)
            if not (manual / target).is_file():
                yield f"{name}: {address} is missing"
            elif anchor and anchor not in pages[target].anchors:
                yield f"{name}: {address} is no anchor of that page"
            if target in pages:
                followed[name].add(target)
    reached, ahead = set(), ["index.html"]
    while ahead:
        name = ahead.pop()
        if name not in reached:
            reached.add(name)
            ahead += followed.get(name, ())
    yield from (
        f"{name} cannot be reached from index.html" for name in sorted(set(pages) - reached)
    )
    sheet = (manual / "manual.css").read_text(encoding="utf-8")
    if "url(" in sheet or "@import" in sheet:
        yield "manual.css fetches something"


def check_order(pages):
    """Whether turning the pages, forward and back, goes through all of them as the contents list them."""
    listed = [link for link in pages["index.html"].links if link in pages]
    order = ["index.html", *dict.fromkeys(listed)]
    for name, after in zip(order, order[1:] + [None]):
        if name in pages and pages[name].neighbours.get("next") != after:
            yield f"{name} is not followed by {after}, as in the contents"
        if after in pages and name != "index.html" and pages[after].neighbours.get("prev") != name:
            yield f"{after} does not come after {name}, as in the contents"


def luminance(colour):
    """How much light a colour such as #26232e gives, from 0 to 1."""
    shares = [int(colour[k : k + 2], 16) / 255 for k in (1, 3, 5)]
    linear = [s / 12.92 if s <= 0.04045 else ((s + 0.055) / 1.055) ** 2.4 for s in shares]
    return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]


def check_colours(manual):
    """Faults of the manual's colours: what of them cannot be read on its grounds."""
    sheet = (manual / "manual.css").read_text(encoding="utf-8").split("@media print")[0]
    looks = [
        dict(re.findall(r"--([a-z]+): (#[0-9a-f]{6});", root))
        for root in re.findall(r":root \{([^}]*)\}", sheet)
    ]
    if len(looks) != 2:
        yield f"manual.css has {len(looks)} looks, not a light and a dark one"
    for look in ({**looks[0], **changed} for changed in looks):  # as a style sheet is read
        for ink in ("text", "quiet", "link", "mark"):
            for ground in ("ground", "panel"):
                light = sorted(luminance(look[name]) + 0.05 for name in (ink, ground))
                if light[1] / light[0] < 4.5:
                    yield (
                        f"manual.css: {ink} {look[ink]} on {ground} {look[ground]} has a contrast"
                        f" of {light[1] / light[0]:.2f}"
                    )


def check_examples(pages, program):
    """Faults of examples: each line is to come in the program's output, in that order."""
    for name, page in pages.items():
        for command, text in page.examples:
            output = iter(program.known_lines(command))
            for line in text.split("\n"):
                if line != "…" and line.rstrip() not in output:
                    yield f"{name}: `{command}` does not write: {line}"
                    break


def check_writings(pages, program):
    """Faults of commands that are shown because they write a file."""
    for name, page in pages.items():
        for files, commands in page.writings:
            program.clear(files.split())
            for command in commands.split("\n"):
                program.lines(*shlex.split(command)[1:])
            yield from (
                f"{name}: `{commands}` does not write {file}"
                for file in files.split()
                if not program.has(file)
            )


def check_command_line(page, program):
    """Differences between the tables of the page and what the program offers."""
    words = {word for cell in page.first_cells for word in re.split(r"[\s,]+", cell)}
    offered = program.options() | set(program.commands())
    described = {word for word in words if re.fullmatch(r"-{0,2}[a-z][a-z-]*", word)}
    yield from (f"command-line.html lacks {word}" for word in sorted(offered - described))
    yield from (f"command-line.html invents {word}" for word in sorted(described - offered))


def faults_of(manual, program):
    pages = {path.name: Page(path) for path in sorted(manual.glob("*.html"))}
    yield from (f"{name} {fault}" for name, page in pages.items() for fault in page.faults)
    yield from check_links(manual, pages)
    yield from check_order(pages)
    yield from check_colours(manual)
    yield from check_examples(pages, program)
    yield from check_writings(pages, program)
    yield from check_command_line(pages["command-line.html"], program)


if __name__ == "__main__":
    folder = Path(sys.argv[1])
    with tempfile.TemporaryDirectory() as own:
        found = list(faults_of(folder, Program(sys.argv[2], own, folder.glob("*.csv"))))
    print("\n".join(found) or "The manual leads where it says.")
    sys.exit(1 if found else 0)
