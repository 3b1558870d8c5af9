"""What is cut or covered on a wheel or a star map that the program has drawn.

Every text is held against all that is drawn over or under it: other texts, dots, chords, lines
of figures, the circle of the latitude.  The red net and the ecliptic lie under everything and
are meant to.  Lengths are units of the chart, counted from its middle at (180, 180).
"""

import math
import xml.etree.ElementTree as ElementTree
from dataclasses import dataclass
from itertools import combinations

from .checks.wheel import RimText, UprightText
from .lettering import ASCENT, DESCENT, TYPE, text_width
from .plane import box_gap, between
from .world import TAU

DISC = 180  # its radius
PATHS = {"rim": 175, "rim_inner": 170}
TEXT_GAP = 0.3  # from a text to another one
LINE_GAP = 0.2  # from a text to the edge of a line or a dot
MOON = "#3a3a3a dot"  # its dark disc
NET = ("red", "#4af2a1")  # the strokes of what lies under everything


@dataclass(frozen=True)
class Dot:
    name: str
    at: tuple
    radius: float


@dataclass(frozen=True)
class Line:
    name: str
    points: list  # half a unit apart
    half_width: float


class Chart:
    """The texts, dots and lines of a chart's disc; its panel and header are left out."""

    def __init__(self, svg):
        self.texts, self.dots, self.lines = [], [], []
        root = ElementTree.fromstring(svg)
        clipped = {e for group in root if group.get("clip-path") for e in group.iter()}
        for element in root.iter():
            kind = element.tag.split("}")[1]
            if kind == "text":
                self.read_text(element, element in clipped)
            elif kind == "circle":
                self.read_circle(element)
            elif kind == "line":
                self.read_line(element)

    def read_text(self, element, is_clipped):
        if element.get("font-size") != "%g" % TYPE:
            return  # of the header, the panel or the compass
        path = next(iter(element), None)
        if path is not None:
            (radius,) = (PATHS[v[1:]] for k, v in path.attrib.items() if k.endswith("href"))
            start = float(path.get("startOffset").rstrip("%")) / 100 * TAU * radius
            self.texts.append(RimText(path.text, radius, start, start + text_width(path.text)))
            return
        name = element.text.strip()
        x, y, width = float(element.get("x")) - 180, float(element.get("y")) - 180, text_width(name)
        if element.get("text-anchor") == "middle":
            x -= width / 2
        text = UprightText(name, (x, y - ASCENT, x + width, y + DESCENT))
        if not is_clipped or text.distance((0, 0)) < DISC:
            self.texts.append(text)

    def read_circle(self, element):
        x, y, r = (float(element.get(k)) for k in ("cx", "cy", "r"))
        x, y = x - 180, y - 180
        if element.get("fill") != "none":
            if math.hypot(x, y) > DISC + 20 or r >= 25 or x > DISC + 20:
                return  # the disc itself, the compass, a dot of the panel
            self.dots.append(Dot("%s dot" % element.get("fill"), (x, y), r))
        elif element.get("stroke") not in NET:
            n = int(4 * math.pi * r)
            turns = (k * TAU / n for k in range(n))
            points = [(x + r * math.cos(a), y + r * math.sin(a)) for a in turns]
            self.lines.append(Line("circle of the latitude", points, 0.5))

    def read_line(self, element):
        a, b = (tuple(float(element.get(k + i)) - 180 for k in "xy") for i in "12")
        if element.get("stroke") in NET or min(a[0], b[0]) > DISC + 20:
            return
        length, half = math.dist(a, b), float(element.get("stroke-width")) / 2
        n = max(1, int(2 * length))
        points = [
            between(a, b, k / n) for k in range(n + 1) if half <= k * length / n <= length - half
        ]
        self.lines.append(Line("%s line" % element.get("stroke"), points, half))


def along(text):
    return text.start / text.radius, text.end / text.radius


def text_gap(a, b):
    """From a text to another one, about."""
    if isinstance(a, UprightText) and isinstance(b, UprightText):
        return box_gap(a.box, b.box)
    if isinstance(a, RimText) and isinstance(b, RimText):
        if a.radius != b.radius:
            return math.inf  # the two paths lie apart
        turns = (-TAU, 0, TAU)
        (s, e), (s2, e2) = along(a), along(b)
        return min(max(s2 + t - e, s - e2 - t) for t in turns) * a.radius
    upright, rim = (a, b) if isinstance(a, UprightText) else (b, a)
    x0, y0, x1, y1 = upright.box
    steps = [k / 20 for k in range(21)]
    return min(rim.distance((x0 + (x1 - x0) * i, y0 + (y1 - y0) * j)) for i in steps for j in steps)


def crosses_rim(near, far):
    return near < DISC + LINE_GAP and far > DISC - LINE_GAP


def cut_at_rim(text):
    """Whether the disc's rim runs through a text."""
    if isinstance(text, RimText):
        return text.end > TAU * text.radius
    x0, y0, x1, y1 = text.box
    far = max(math.hypot(x, y) for x in (x0, x1) for y in (y0, y1))
    return crosses_rim(text.distance((0, 0)), far)


def extent(text):
    """The upright box around a text."""
    if isinstance(text, UprightText):
        return text.box
    angles = [along(text)[0] + k / 20 * (text.end - text.start) / text.radius for k in range(21)]
    radii = (text.radius - DESCENT, text.radius + ASCENT)
    xs, ys = zip(*((r * math.sin(a), -r * math.cos(a)) for a in angles for r in radii))
    return min(xs), min(ys), max(xs), max(ys)


def in_view(texts, view):
    """The texts of which a part (x, y, width, height, in the chart's own units) shows anything."""
    x, y, width, height = view
    part = (x - 180, y - 180, x + width - 180, y + height - 180)
    return [t for t in texts if box_gap(extent(t), part) < 0], part


def faults(svg, view=(-10, -10, 380, 380)):
    """A line for everything that is cut or covered in that part of a chart."""
    chart = Chart(svg)
    texts, part = in_view(chart.texts, view)
    for text in texts:
        x0, y0, x1, y1 = extent(text)
        if x0 < part[0] or y0 < part[1] or x1 > part[2] or y1 > part[3]:
            yield "%s is cut at the picture's edge" % text.name
        if cut_at_rim(text):
            yield "%s is cut at the rim" % text.name
    for dot in chart.dots:
        off = math.hypot(*dot.at)
        if dot.name == MOON and crosses_rim(off - dot.radius, off + dot.radius):
            yield "the moon is cut at the rim"
    for a, b in combinations(texts, 2):
        if text_gap(a, b) < TEXT_GAP:
            yield "%s and %s lie on one another" % (a.name, b.name)
    for text in texts:
        for dot in chart.dots:
            if text.distance(dot.at) < dot.radius + LINE_GAP:
                yield "%s lies on a %s at %.0f, %.0f" % (text.name, dot.name, *dot.at)
        for line in chart.lines:
            if any(text.distance(p) < line.half_width + LINE_GAP for p in line.points):
                yield "%s is cut by a %s" % (text.name, line.name)
