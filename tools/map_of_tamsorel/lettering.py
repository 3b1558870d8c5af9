"""Letters: set along lines and arcs, every one with the box of its ink.

The typeface lies beside this file; it is found through a fontconfig file of our own, so
that no other font of the machine can slip in.
"""

import math
import os
import tempfile
from dataclasses import dataclass, field
from pathlib import Path

import numpy as np

FONTS = Path(__file__).with_name("fonts")
_folder = tempfile.TemporaryDirectory(prefix="map-fonts-")  # gone when the program ends
_config = Path(_folder.name) / "fonts.conf"
_config.write_text(
    f"<?xml version='1.0'?><fontconfig><dir>{FONTS}</dir>"
    f"<cachedir>{_config.parent}</cachedir></fontconfig>"
)
os.environ["FONTCONFIG_FILE"] = str(_config)

import cairo  # noqa: E402  (must come after the fonts are named)

FAMILY = "EB Garamond"
# Pairs that stand too far apart, in em.
KERN = {
    "Vo": -0.07,
    "Ve": -0.06,
    "Va": -0.07,
    "We": -0.05,
    "Wa": -0.06,
    "To": -0.07,
    "Te": -0.07,
    "Ta": -0.08,
    "Pa": -0.05,
    "Pe": -0.02,
    "AV": -0.10,
    "VA": -0.10,
    "AW": -0.08,
    "WA": -0.08,
    "LT": -0.06,
    "TA": -0.06,
    "AT": -0.06,
    "LV": -0.08,
    "RV": -0.03,
    "Fa": -0.03,
    "Yo": -0.07,
    "ow": -0.01,
}


@dataclass(frozen=True)
class Style:
    size: float  # pixels to the em
    italic: bool = False
    tracking: float = 0.0  # extra room after each letter, in em
    colour: tuple = (0.25, 0.18, 0.13)
    alpha: float = 1.0


@dataclass
class Letter:
    char: str
    x: float
    y: float
    angle: float  # radians, clockwise on the sheet
    box: np.ndarray  # the ink's four corners in pixels


@dataclass
class Label:
    text: str
    kind: str
    style: Style
    letters: list = field(default_factory=list)

    def boxes(self):
        return np.array([letter.box for letter in self.letters if letter.char != " "])

    def moved(self, dx, dy):
        shift = np.array([dx, dy])
        return Label(
            self.text,
            self.kind,
            self.style,
            [Letter(t.char, t.x + dx, t.y + dy, t.angle, t.box + shift) for t in self.letters],
        )


_scratch = cairo.Context(cairo.ImageSurface(cairo.FORMAT_A8, 8, 8))


def choose(context, style):
    context.select_font_face(
        FAMILY,
        cairo.FONT_SLANT_ITALIC if style.italic else cairo.FONT_SLANT_NORMAL,
        cairo.FONT_WEIGHT_NORMAL,
    )
    context.set_font_size(style.size)
    options = cairo.FontOptions()
    options.set_hint_style(cairo.HINT_STYLE_NONE)
    options.set_hint_metrics(cairo.HINT_METRICS_OFF)
    options.set_antialias(cairo.ANTIALIAS_GRAY)
    context.set_font_options(options)


def advances(text, style):
    """Where each letter starts, and the length of the whole, in pixels."""
    choose(_scratch, style)
    starts, at = [], 0.0
    for k, char in enumerate(text):
        starts.append(at)
        at += _scratch.text_extents(char).x_advance + style.tracking * style.size
        at += KERN.get(text[k : k + 2], 0.0) * style.size
    return starts, at - style.tracking * style.size


def _letter(char, x, y, angle, style):
    e = _scratch.text_extents(char)
    c, s = math.cos(angle), math.sin(angle)
    corners = [
        (e.x_bearing, e.y_bearing),
        (e.x_bearing + e.width, e.y_bearing),
        (e.x_bearing + e.width, e.y_bearing + e.height),
        (e.x_bearing, e.y_bearing + e.height),
    ]
    return Letter(
        char, x, y, angle, np.array([(x + u * c - v * s, y + u * s + v * c) for u, v in corners])
    )


def on_arc(text, kind, style, x, y, angle=0.0, bend=0.0):
    """A label whose baseline is centred on (x, y), turned and bent by so many degrees in all.

    Positive angles turn clockwise; a positive bend bows the line upwards in the middle.
    """
    starts, length = advances(text, style)
    turn, bow = math.radians(angle), math.radians(bend)
    letters = []
    for k, char in enumerate(text):
        width = (starts[k + 1] if k + 1 < len(text) else length) - starts[k]
        s = starts[k] + width / 2 - length / 2  # of the letter's middle
        if abs(bow) > 1e-6:
            radius = length / bow
            a = s / radius
            u, v = (
                radius * math.sin(a),
                radius * (1 - math.cos(a)) - radius * (1 - math.cos(bow / 2)) / 2,
            )
        else:
            a, u, v = 0.0, s, 0.0
        a += turn
        px = x + u * math.cos(turn) - v * math.sin(turn) - width / 2 * math.cos(a)
        py = y + u * math.sin(turn) + v * math.cos(turn) - width / 2 * math.sin(a)
        letters.append(_letter(char, px, py, a, style))
    return Label(text, kind, style, letters)


def along_line(text, kind, style, points, start):
    """A label along a line (n, 2) of pixels from the distance `start`; None if it is too short."""
    steps = np.hypot(*np.diff(points, axis=0).T)
    along = np.concatenate([[0], np.cumsum(steps)])
    starts, length = advances(text, style)
    if start + length > along[-1]:
        return None
    letters = []
    for k, char in enumerate(text):
        width = (starts[k + 1] if k + 1 < len(text) else length) - starts[k]
        at = [
            np.array([np.interp(start + starts[k] + w, along, points[:, i]) for i in (0, 1)])
            for w in (-0.15 * style.size, width / 2, width + 0.15 * style.size)
        ]
        a = math.atan2(*(at[2] - at[0])[::-1])
        letters.append(
            _letter(
                char,
                at[1][0] - width / 2 * math.cos(a),
                at[1][1] - width / 2 * math.sin(a),
                a,
                style,
            )
        )
    return Label(text, kind, style, letters)


def trace(context, label):
    """Adds the label's outlines to the context's path."""
    choose(context, label.style)
    for letter in label.letters:
        context.save()
        context.translate(letter.x, letter.y)
        context.rotate(letter.angle)
        context.move_to(0, 0)
        context.text_path(letter.char)
        context.restore()


def draw(context, label):
    context.new_path()
    trace(context, label)
    context.set_source_rgba(*label.style.colour, label.style.alpha)
    context.fill()


def _apart(a, b, gap):
    """Whether some straight line keeps two convex boxes `gap` pixels apart."""
    for shape in (a, b):
        for k in range(2):
            edge = shape[k + 1] - shape[k]
            normal = np.array([-edge[1], edge[0]]) / max(math.hypot(*edge), 1e-9)
            p, q = a @ normal, b @ normal
            if p.min() - q.max() >= gap or q.min() - p.max() >= gap:
                return True
    return False


def touching(first, second, gap=0.0):
    """Whether two sets of boxes (n, 4, 2) come nearer to each other than `gap` pixels."""
    if (first.min((0, 1)) - gap > second.max((0, 1))).any():
        return False
    if (second.min((0, 1)) - gap > first.max((0, 1))).any():
        return False
    return any(not _apart(a, b, gap) for a in first for b in second)


def nearest_to(boxes, points):
    """The least distance from any box to any of the points (0 inside)."""
    least = 1e9
    for box in boxes:
        u, v = box[1] - box[0], box[3] - box[0]
        lu, lv = max(math.hypot(*u), 1e-9), max(math.hypot(*v), 1e-9)
        off = points - box[0]
        a, b = off @ u / lu, off @ v / lv
        away = np.hypot(
            np.maximum(np.maximum(-a, a - lu), 0), np.maximum(np.maximum(-b, b - lv), 0)
        )
        least = min(least, float(away.min()))
    return least
