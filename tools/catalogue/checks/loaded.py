"""The catalogue as it is read back from its files."""

import csv
from dataclasses import dataclass
from functools import cached_property

from ..figures import Figure
from ..sphere import to_ecliptic, to_equatorial, turned_back, vec

STARS_HEAD = "name,frame,color,phi,theta,magnitude\n"
LINES_HEAD = "from,to\n"


@dataclass(frozen=True, eq=False)
class Entry:
    """A row of the star table; `at` and `eq` are the vectors at which the charts show it."""

    name: str
    frame: str
    color: str
    phi: float  # radians, as theta
    theta: float
    mag: float
    at: tuple  # in the ecliptic frame
    eq: tuple  # in the equatorial frame

    @property
    def numbered(self):
        return is_numbered(self.name)

    @property
    def marker(self):
        return self.name[:1] == "_" and not self.numbered

    @property
    def background(self):
        return self.name.startswith("_BACKGROUND")

    @property
    def code(self):
        return self.name[1:].rstrip("0123456789") if self.numbered else ""


def is_numbered(name):
    return name[:1] == "_" and name[-1].isdigit()


def read_entry(row):
    phi, theta = float(row["phi"]), float(row["theta"])
    at = vec(phi, theta)
    if row["frame"] == "equatorial":
        at = to_ecliptic(at)
    if is_numbered(row["name"]):
        at = turned_back(at)
    return Entry(
        row["name"],
        row["frame"],
        row["color"],
        phi,
        theta,
        float(row["magnitude"]),
        at,
        to_equatorial(at),
    )


class Catalogue:
    """The rows by what they are."""

    def __init__(self, entries, pairs):
        self.entries = entries
        self.pairs = pairs  # of names, as the line table has them
        self.by_name = {s.name: s for s in entries}
        self.background = [s for s in entries if s.background]
        self.members = [s for s in entries if s.numbered and not s.background]
        self.markers = [s for s in entries if s.marker]
        self.names = [s for s in entries if not s.numbered and not s.marker]
        self.sign_names = [s for s in self.names if s.frame == "ecliptic"]
        self.other_names = [s for s in self.names if s.frame == "equatorial"]
        self.named_stars = [s for s in self.other_names if s.mag == 1.0]
        self.groups = {}  # the members of every constellation by its code
        for s in self.members:
            self.groups.setdefault(s.code, []).append(s)

    # The following may be asked for once the form of the files is known to be in order.

    @cached_property
    def figures(self):
        """The constellations in the order of the star table."""
        lines = {code: [] for code in self.groups}
        for a, b in (map(self.by_name.get, pair) for pair in self.pairs):
            group = self.groups[a.code]
            lines[a.code].append((group.index(a), group.index(b)))
        return [
            Figure(code.capitalize(), "", group, lines[code]) for code, group in self.groups.items()
        ]

    @cached_property
    def dots(self):
        """Everything that is drawn as a star, from south to north."""
        return sorted(self.background + self.members + self.named_stars, key=lambda s: s.at[2])


def load(stars, lines, report):
    """The catalogue in the bytes of its two tables, which are checked on the way."""
    both = stars + lines
    report(both.isascii() and b"\r" not in both, "both files are plain ASCII with line feeds")
    report(
        stars.startswith(STARS_HEAD.encode()) and lines.startswith(LINES_HEAD.encode()),
        "column lines",
    )
    return Catalogue(
        [read_entry(row) for row in table(stars)],
        [(row["from"], row["to"]) for row in table(lines)],
    )


def table(raw):
    return csv.DictReader(raw.decode("ascii", "replace").splitlines())
