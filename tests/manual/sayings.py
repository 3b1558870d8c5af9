"""What the program's sources say to a person: the texts in them that are sentences or parts of one.

A text counts where it has two words, and in the window's sources every text that is for a person (`tr`). What
differs from time to time is left out, so that the parts between remain: "%1 a second" is "a second"."""

import re
from pathlib import Path

# The rooms, and single sources of rooms, whose texts come before a person. Not among them: what is tried
# elsewhere (the commands' summaries in tests/documents, options and their help with the grammar), markup
# (the charts' SVG), and what is said of a chart or a catalogue that is none, which only a mistake of the
# program can bring about (drawing/svg_reader, charts/catalogue_reader).
SPEAKING = (
    "ui model export files words almanac/search almanac/events/event_words.cpp notes astro/invariant.cpp "
    "charts/mark_reading.cpp charts/mark_recorder.cpp cli/almanac cli/batch cli/documents cli/page "
    "cli/program cli/typed cli/written"
).split()
HELP = "cli/typed/language.cpp"  # of it, what it refuses

TEXT = re.compile(
    r'R"(?P<mark>\w*)\((?P<raw>.*?)\)(?P=mark)"'
    r'|"(?P<text>(?:[^"\\\n]|\\.)*)"'
    r"|//[^\n]*|/\*.*?\*/|'(?:[^'\\]|\\.)+'",
    re.DOTALL,
)
ESCAPES = {"n": "\n", "t": " ", "r": " ", '"': '"', "\\": "\\"}
BROKEN_INVARIANT = re.compile(r"\b(requireInvariant|stopOnBrokenInvariant|static_assert)\s*\(")


def plain(text):
    text = re.sub(r"\\x[0-9a-fA-F]{2}", " ", text)
    return re.sub(r"\\(.)", lambda match: ESCAPES.get(match.group(1), match.group(1)), text)


def texts_of(source):
    """(text, what stands before it in its statement) of each; texts side by side are one."""
    source = re.sub(r"(?m)^#.*$", "", source)
    found, end = [], None
    for match in TEXT.finditer(source):
        text = match.group("raw")
        if text is None and match.group("text") is not None:
            text = plain(match.group("text"))
        if text is None:
            continue
        if end is not None and source[end : match.start()].strip() == "":
            found[-1][0] += text
        else:
            begin = max(source.rfind(sign, 0, match.start()) for sign in ";{}")
            found.append([text, source[begin + 1 : match.start()]])
        end = match.end()
    return found


def parts_of(text, is_of_window):
    """What stays the same of a text, in the window without the letters that keys are underlined by."""
    if is_of_window:
        text = text.replace("&&", "\0").replace("&", "").replace("\0", "&")
    for part in re.split(r"%\d|%[-.*0-9]*[a-z]+|[\n\t]|\x1b\[\w", text):
        yield " ".join(part.split()).strip(" .,:;()\"'<>%[]")


def is_markup(text):
    return re.search(r"</?[a-z][^>]*>|\{[^}]*:[^}]*\}", text) is not None


def is_said(text, before, is_of_window):
    if BROKEN_INVARIANT.search(before) or is_markup(text):
        return False
    is_for_a_person = is_of_window and re.search(r"\btr\($", before)
    return is_for_a_person or re.search(r"[A-Za-z]{2}\W* \W*[A-Za-z]{2}", text)


def sayings_of(project):
    """Every part of a sentence that a person may be told: (source, part)."""
    for place in SPEAKING:
        path = project / place
        sources = sorted(path.rglob("*")) if path.is_dir() else [path]
        for source in (one for one in sources if one.suffix in (".cpp", ".h")):
            name = str(source.relative_to(project))
            for text, before in texts_of(source.read_text(encoding="utf-8")):
                if name == HELP and "UsageError" not in before:
                    continue
                is_of_window = name.startswith("ui/")
                if is_said(text, before, is_of_window):
                    for part in parts_of(text, is_of_window):
                        if re.search("[a-z]{2}", part):
                            yield name, part


PAGE_TEXT = re.compile(r'"((?:[^"\\\n]|\\.)*)"|`((?:[^`\\]|\\.)*)`|//[^\n]*|/\*.*?\*/', re.DOTALL)
OF_THE_BROWSER = re.compile(r"gradient|prefers-|button, ")  # what is not for a person


def page_sayings_of(project):
    """The same of the page for players: (source, part)."""
    for source in sorted((project / "web/page").glob("*.mjs")):
        if source.name == "outline.mjs":  # the map's coasts
            continue
        for match in PAGE_TEXT.finditer(source.read_text(encoding="utf-8")):
            for part in re.split(r"\$\{[^}]*\}?|\[$", match.group(1) or match.group(2) or ""):
                words = " ".join(part.split()).strip(" .,:;()")
                if re.search(r"[A-Za-z]{2} [A-Za-z]{2}", words) and not OF_THE_BROWSER.search(
                    words
                ):
                    yield f"web/page/{source.name}", words


def environment_of(project):
    """The variables of the environment that the program asks for."""
    asked = re.compile(r'(?:getenv|qEnvironmentVariable|qgetenv)\w*\("(\w+)"')
    for room in ("astro", "cli", "drawing", "export", "files", "model", "ui", "web"):
        for source in (project / room).rglob("*.cpp"):
            yield from asked.findall(source.read_text(encoding="utf-8"))


if __name__ == "__main__":
    for where, words in sayings_of(Path(__file__).parents[2]):
        print(f"{where}: {words}")
