"""Takes from the program what it has and says, and names what of it the manual lacks: the sentences of its
sources, the columns and codes of its tables, the members of its files for programs, the words of conditions
and events, the files that it writes and the variables that it asks for. (Options and commands:
manual_check.py; the controls, menus and keys of the window: tests/ui/window/manual_test.cpp.)

    manual_coverage.py MANUAL_FOLDER VEYRUNA PROJECT

Prints a line for each that is lacking; exit status 1 where there is one."""

import html
import json
import re
import shlex
import sys
import tempfile
from pathlib import Path

from program import Program
from sayings import environment_of, page_sayings_of, sayings_of

FORMS = "svg,pdf,png,txt,html,json,jsonl,csv"
BLOCK = re.compile(r"<(?=/?(?:p|t[dhr]|li|h[1-6]|pre|div|br|title|figcaption)\b)")


def read_text(page):
    """What a person reads of a page, in one line."""
    parts = re.sub(r"<[^>]*>", "", BLOCK.sub(" <", page))
    return " ".join(html.unescape(parts).split())


class Manual:
    """The text of all pages, and the cells and code of each."""

    def __init__(self, folder):
        pages = {path.name: path.read_text(encoding="utf-8") for path in folder.glob("*.html")}
        self.text = " ".join(read_text(page) for page in pages.values())
        # An example would say any column or code, without a word on it.
        self._explained = {
            name: " ".join(read_text(re.sub(r"<pre.*?</pre>", "", page, flags=re.DOTALL)).split())
            for name, page in pages.items()
        }
        self._rows = {
            name: [
                [read_text(cell) for cell in re.findall(r"<t[dh][^>]*>(.*?)</t[dh]>", row)]
                for row in re.findall(r"<tr>(.*?)</tr>", page, re.DOTALL)
            ]
            for name, page in pages.items()
        }

    def says(self, words):
        return words in self.text

    def has_word(self, word):
        return any(self.explains(page, word) for page in self._explained)

    def explains(self, page, word):
        return (
            re.search(rf"(?<![\w-]){re.escape(word)}(?![\w-])", self._explained[page]) is not None
        )

    def has_row(self, page, cells):
        return any(row[: len(cells)] == cells for row in self._rows[page])


def lacking_sayings(manual, project):
    said = {*sayings_of(project), *page_sayings_of(project)}
    for source, words in sorted(said):
        if not manual.says(words):
            yield f"the manual does not have what {source} says: {words}"


def schema_of(program, name):
    return json.loads("\n".join(program.lines("schema", name)))


def lacking_columns(manual, program):
    """Every heading and every code of the tables, and of the positions."""
    rows = ["--rows", "1500", "--step", "7/8"]
    ephemeris = program.lines("ephemeris", *rows)
    conjunctions = program.lines("conjunctions", *rows)
    heads = ephemeris[:1] + conjunctions[:2] + program.lines("positions")[:1]
    words = {word for head in heads for word in re.split(r"\s{2,}", head.strip())}
    words = words - {"THESSIL BRALO"} | {"THESSIL", "BRALO"}  # stand close in one of the heads
    for line in ephemeris:
        words |= set(re.findall(r"\b[A-Z]{2}@", line))
    moment = schema_of(program, "ephemeris")["properties"]["moments"]["items"]
    words |= set(moment["properties"]["eclipse_codes"]["items"]["enum"])
    for line in conjunctions[2:]:
        words |= {
            code for pair in re.findall(r"[A-Z]{2}-[A-Z]{2}$", line) for code in pair.split("-")
        }
    yield from (
        f"tables.html does not explain {word}"
        for word in sorted(words)
        if not manual.explains("tables.html", word)
    )


def members_of(schema):
    """(name, description) of each member, of those within others too."""
    for name, member in schema["properties"].items():
        if name == "schema":
            continue
        items = member.get("items", {})
        if items.get("type") == "object":
            yield name, None
            yield from members_of(items)
        else:
            yield name, member["description"]


def words_in(schema):
    """All words that values may be one of."""
    if isinstance(schema, dict):
        yield from (word for word in schema.get("enum", ()) if isinstance(word, str))
        yield from (word for member in schema.values() for word in words_in(member))


def lacking_members(manual, program):
    for name in (line.split()[0] for line in program.lines("schema")):
        schema = schema_of(program, name)
        for member, description in members_of(schema):
            cells = [member, description] if description else [member]
            if not manual.has_row("programs.html", cells):
                yield f"programs.html has no row of {name} with {' | '.join(cells)}"
        yield from (
            f"the manual does not have {word}, of {name}"
            for word in words_in(schema)
            if not manual.has_word(word)
        )


def refusal_of(program, condition):
    command = ["search", "--from", "720-01-01", "--for", "1 day", condition]
    return program.lines(*command)[0].partition("; give ")[2]


def lacking_conditions(manual, program):
    """Every word that may stand in a condition, as the program lists them when it meets another."""
    beginnings = refusal_of(program, "zzz")
    bodies = re.search(r"a body \(([^)]*)\)", beginnings).group(1).split(", ")
    elements = re.search(r"an element \(([^)]*)\)", beginnings).group(1).split(", ")
    others = re.search("a name of the star map, (.*)", beginnings).group(1)
    words = set(bodies + elements + re.split(", | or ", others))
    asked = [*bodies, *elements, "keep", "power", "Hathel", "dominant sphere"]
    asked += ["bralo natal", "bralo favours", "galvi in", "ascending sign"]
    for beginning in asked:
        accepted = refusal_of(program, beginning + " zzz")
        accepted = re.sub(r"^[^:]*:|; the nearest .*", "", accepted)
        words |= {word.strip() for word in accepted.split(",")}
    yield from (
        f"almanac.html does not explain {word}"
        for word in sorted(words)
        if not manual.explains("almanac.html", word) and not manual.explains("horoscope.html", word)
    )


def lacking_files(manual, program):
    for path in program.lines("all", "--out", "every", "--format", FORMS):
        stem, _, ending = path.rpartition("/")[2].rpartition(".")
        if path.startswith("every/") and not (manual.says(stem) and manual.says("." + ending)):
            yield f"the manual does not name {path}"
    for kind in ("calendarium", "seasons-stars"):
        if not manual.says(kind):
            yield f"the manual does not name {kind}"


def lacking_panel(folder, program, project):
    """What the panel in the picture says and no sentence about the picture does: not everybody sees it."""
    moments = (project / "tools/pictures/moments").read_text(encoding="utf-8")
    moment = shlex.split(re.search("^first-tour (.*)", moments, re.MULTILINE).group(1))
    said = json.loads("\n".join(program.lines(*moment, "horoscope", "--format", "json")))
    sections = (folder / "horoscope.html").read_text(encoding="utf-8").split("<h3")
    lines = [*said["lines"], {"heading": "The Keep", "subject": "", "verdict": said["keep"]}]
    for line in lines:
        section = next(text for text in sections if line["heading"] + "</h3>" in text)
        paragraphs = re.findall("<p>.*?</p>", section)
        told = " ".join(read_text(text) for text in paragraphs if "the picture" in text)
        subject = line["subject"].split(" (")[0]
        words = [subject] if "color" in line or subject.isupper() else []
        words += [line.get("sign", ""), line.get("verdict", "").split(".")[0]]
        for word in words:
            if word.lower() not in told.lower():
                yield f"horoscope.html does not say {word} in words, of {line['heading']}"


def lacking(folder, program, project):
    manual = Manual(folder)
    yield from lacking_sayings(manual, project)
    yield from (
        f"files.html does not name the variable {name}"
        for name in environment_of(project)
        if not manual.explains("files.html", name)
    )
    yield from lacking_panel(folder, program, project)
    for find in (lacking_columns, lacking_members, lacking_conditions, lacking_files):
        yield from find(manual, program)


if __name__ == "__main__":
    with tempfile.TemporaryDirectory() as home:
        found = list(lacking(Path(sys.argv[1]), Program(sys.argv[2], home), Path(sys.argv[3])))
    print("\n".join(found) or "The manual has all that the program has.")
    sys.exit(1 if found else 0)
