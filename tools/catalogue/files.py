"""The texts of the catalogue's files and where they lie."""

from pathlib import Path

from .background import background_stars
from .checks import measure
from .checks.loaded import LINES_HEAD, STARS_HEAD
from .checks.report import Report
from .drawings import YELLOW_STAR
from .figures import other_figures, zodiac_figures
from .names import place_names
from .note import note_text
from .sphere import angles, to_equatorial, turned_forward
from .world import GREY, SIGNS, TAU, WHITE, YELLOW

RESOURCES = Path(__file__).absolute().parents[2] / "resources"
STARS_CSV = RESOURCES / "star_catalogue.csv"
LINES_CSV = RESOURCES / "constellation_lines.csv"
NOTE_MD = RESOURCES / "star_catalogue.md"
FILES = (STARS_CSV, LINES_CSV, NOTE_MD)


def as_row(name, frame, color, position, mag):
    """A line of the star table; position is in radians, mag as it is written."""
    phi, theta = ("%.5f" % x for x in position)
    if phi == "%.5f" % TAU:
        phi = "0.00000"
    if theta == "-0.00000":
        theta = "0.00000"
    return ",".join((name, frame, color, phi, theta, mag)) + "\n"


def star_position(v):
    """Equatorial position, for the catalogue, of a star seen at the ecliptic vector v."""
    return angles(to_equatorial(turned_forward(v)))


def star_rows(figures, labels):
    stars = sorted((star_position(v), mag) for v, mag in background_stars(figures, labels))
    for i, (position, mag) in enumerate(stars, 1):
        yield as_row("_BACKGROUND%03d" % i, "equatorial", GREY, position, "%.2f" % mag)
    for f in figures:
        for i, star in enumerate(f.stars, 1):
            name = "_%s%d" % (f.code, i)
            yield as_row(
                name,
                "equatorial",
                YELLOW if name == YELLOW_STAR else WHITE,
                star_position(star.at),
                "%.2f" % star.mag,
            )
    for name, start in SIGNS:
        yield ",".join(("_" + name.upper(), "ecliptic", WHITE, start, "0.0", "1.0")) + "\n"
    for t in labels:
        position = angles(t.at if t.frame == "ecliptic" else to_equatorial(t.at))
        yield as_row(t.name, t.frame, t.color, position, "1.0" if t.mag else "0")


def line_rows(figures):
    for f in figures:
        for a, b in f.lines:
            yield "_%s%d,_%s%d\n" % (f.code, a + 1, f.code, b + 1)


def draw_up():
    """The sky drawn anew: the text of every file by its path."""
    zodiac, others = zodiac_figures(), other_figures()
    figures = zodiac + others
    labels = place_names(zodiac, others)
    stars = STARS_HEAD + "".join(star_rows(figures, labels))
    lines = LINES_HEAD + "".join(line_rows(figures))
    findings = []
    measure(stars.encode(), lines.encode(), Report(findings.append))
    return {
        STARS_CSV: stars,
        LINES_CSV: lines,
        NOTE_MD: note_text(figures, labels, findings),
    }


def write():
    for path, text in draw_up().items():
        path.write_bytes(text.encode("utf-8"))


def check():
    """Measure the files as they stand and print what is found; the number of faults."""
    report = Report()
    measure(STARS_CSV.read_bytes(), LINES_CSV.read_bytes(), report)
    # No fault of the sky: another mathematical library may round a last digit otherwise.
    held = {path: path.read_bytes().decode("utf-8") for path in FILES}
    print(
        "note   the files %s what this tool draws"
        % ("are exactly" if held == draw_up() else "DIFFER from")
    )
    print("%d faults" % report.faults if report.faults else "no faults")
    return report.faults
