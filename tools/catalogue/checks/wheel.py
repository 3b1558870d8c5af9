"""The figures and the names on the wheel.  Lengths are units of the chart."""

import math
from dataclasses import dataclass
from itertools import combinations

from ..lettering import ASCENT, DESCENT, dot_size, name_box, text_width, whole
from ..plane import between, box_gap, box_to_point, meeting_point, point_to_line
from ..sphere import angles
from ..wanderers import planets
from ..wheel import (
    INNER_PATH,
    OUTER_PATH,
    chord_gap,
    circle_gap,
    from_middle,
    longitude,
    on_rim,
    project,
)
from ..world import FIRST_MOMENT, TAU, WHITE, YELLOW, sign_range

UPRIGHT_LATITUDE = 12.0  # degrees; names further north stand upright
RIM_GAP = 2.5  # between two names along the rim
SEAM = 2.0  # from such a name to the path's ends at longitude 0
UPRIGHT_GAP = 2.0  # between two upright names
FIRST_START_GAP = 1.5  # from an upright name to the circle and the chords of the first start
DOT_OFFSET = 0.01  # from a figure star's place to the whole units of its dot
TEXT_TO_LINE, TEXT_TO_DOT = 0.8, 0.2
MIDDLE = (180, 180)


def check(catalogue, report):
    lines = check_figures(catalogue, report)
    check_dots(catalogue, report)
    check_places(catalogue, report)
    check_first_start(catalogue, report)
    for black_and_white in (False, True):
        check_texts(catalogue, lines, black_and_white, report)


def check_figures(catalogue, report):
    """Returns the lines that show, as (figure's name, from, to)."""
    lines, cut = [], 0
    for f in catalogue.figures:
        for a, b in f.arcs:
            (rho, *a), (rho2, *b) = project(a), project(b)
            if rho <= 1 or rho2 <= 1:
                lines.append((f.name, a, b))
            elif point_to_line(MIDDLE, a, b) < 180:
                cut += 1
    crossing = 0
    for (name, a, b), (name2, c, d) in combinations(lines, 2):
        if name != name2:
            point = meeting_point(a, b, c, d)
            crossing += point is not None and math.dist(point, MIDDLE) <= 180
    report(
        cut == 0 and crossing == 0,
        "wheel: lines of different figures crossing %d, "
        "lines from outside to outside showing %d" % (crossing, cut),
    )
    return lines


def check_dots(catalogue, report):
    """Lines end in the middles of the dots, which stand on whole units."""
    offsets = sorted(
        math.hypot(x - whole(x), y - whole(y))
        for x, y in (from_middle(s.at) for s in catalogue.members)
    )
    report(
        offsets[-1] <= DOT_OFFSET,
        "wheel: figure stars' dots stand %.3f units beside their places, at most %.3f"
        % (offsets[len(offsets) // 2], offsets[-1]),
    )


def check_first_start(catalogue, report):
    """What a new user sees first: the circle of the latitude, the planets' chords and labels."""
    rim, upright = wheel_texts(catalogue.names, False)
    for gap_to, what in ((circle_gap, "the circle of the latitude"), (chord_gap, "a chord")):
        gap, name = min((gap_to(t.box), t.name) for t in upright)
        report(
            gap >= FIRST_START_GAP,
            "wheel of the first start: nearest upright name to %s %.1f units (%s)"
            % (what, gap, name),
        )
    gap, name, planet = min(
        (max(t.start - start - text_width(p), start - t.end), t.name, p)
        for p, at in planets(FIRST_MOMENT)
        for t in rim
        if t.radius == INNER_PATH
        for start in (angles(at)[0] * INNER_PATH,)
    )
    report(
        gap >= RIM_GAP,
        "wheel of the first start: nearest name to a planet's label %.1f units (%s and %s)"
        % (gap, name, planet),
    )


def check_places(catalogue, report):
    """Which names stand where."""
    south = [s for s in catalogue.other_names if on_rim(s.at)]
    report(
        all(s.color == YELLOW for s in south),
        "wheel: names along the rim besides the signs %d, all %s" % (len(south), YELLOW),
    )
    low = min(math.degrees(angles(s.at)[1]) for s in catalogue.other_names if s not in south)
    report(low >= UPRIGHT_LATITUDE, "wheel: upright names from latitude %.1f degrees on" % low)
    worst = 0.0
    for i, s in enumerate(catalogue.sign_names):
        start, end = sign_range(i)
        middle = angles(s.at)[0] + text_width(s.name) / OUTER_PATH / 2
        worst = max(worst, abs(math.degrees(middle - (start + end) / 2)))
    report(worst < 0.1, "wheel: sign names centred in their signs to %.2f degrees" % worst)


@dataclass(frozen=True)
class RimText:
    """A name along the rim, from start to end on the path of that radius."""

    name: str
    radius: float
    start: float
    end: float

    def distance(self, p):
        """From a point counted from the wheel's middle."""
        r, along = math.hypot(*p), longitude(*p) * self.radius
        return math.hypot(
            max(self.start - along, along - self.end, 0),
            max(self.radius - DESCENT - r, r - self.radius - ASCENT, 0),
        )

    def gap(self, other):
        """To another one, around the circle even when they run on different paths."""
        k, k2 = INNER_PATH / self.radius, INNER_PATH / other.radius
        return max(other.start * k2 - self.end * k, self.start * k - other.end * k2)


@dataclass(frozen=True)
class UprightText:
    name: str
    box: tuple  # counted from the wheel's middle

    def distance(self, p):
        """From a point counted from the wheel's middle."""
        return box_to_point(self.box, p)

    def gap(self, other):
        return box_gap(self.box, other.box)

    def rim_gap(self):
        x0, y0, x1, y1 = self.box
        return INNER_PATH - DESCENT - max(math.hypot(x, y) for x in (x0, x1) for y in (y0, y1))


def wheel_texts(names, black_and_white):
    """How every name stands: those along the rim and the upright ones."""
    rim, upright = [], []
    for s in names:
        if on_rim(s.at):
            radius = OUTER_PATH if s.color == WHITE and not black_and_white else INNER_PATH
            # The charts give the start in percent of the path, with one decimal.
            percent = float("%.1f" % (angles(s.at)[0] * 50 / math.pi))
            start = percent / 100 * TAU * radius
            rim.append(RimText(s.name, radius, start, start + text_width(s.name)))
        else:
            upright.append(UprightText(s.name, name_box(s.name, s.mag, *from_middle(s.at))))
    return rim, upright


def line_points(lines):
    """Points half a unit apart along the lines, as (figure's name, point from the middle)."""
    for name, a, b in lines:
        n = max(2, int(math.dist(a, b) * 2))
        for k in range(n + 1):
            x, y = between(a, b, k / n)
            yield name, (x - 180, y - 180)


def check_texts(catalogue, lines, black_and_white, report):
    rim, upright = wheel_texts(catalogue.names, black_and_white)
    mode = "black and white" if black_and_white else "colour"

    def check_gap(gaps, limit, text):
        """The smallest of some (gap, what it is between)."""
        least, what = min(gaps)
        report(least >= limit, "%s: %s (%s)" % (mode, text % least, what))

    check_gap(
        ((s.gap(t), s.name + " and " + t.name) for s, t in combinations(rim, 2)),
        RIM_GAP,
        "nearest two names along the rim %.1f units",
    )
    check_gap(
        ((min(t.start, TAU * t.radius - t.end), t.name) for t in rim),
        SEAM,
        "nearest name to longitude 0 is %.1f units off",
    )
    check_gap(
        [(s.gap(t), s.name + " and " + t.name) for s, t in combinations(upright, 2)]
        + [(t.rim_gap(), t.name + " and the rim") for t in upright],
        UPRIGHT_GAP,
        "nearest two upright names %.1f units",
    )

    points = list(line_points(lines))
    check_gap(
        (
            (t.distance(p), t.name + " and " + name)
            for name, p in points
            if math.hypot(*p) > 155
            for t in rim
        ),
        TEXT_TO_LINE,
        "nearest figure line to a name along the rim %.1f units",
    )
    check_gap(
        ((t.distance(p), t.name + " and " + name) for name, p in points for t in upright),
        TEXT_TO_LINE,
        "nearest figure line to an upright name %.1f units",
    )

    dots = [(s.name, dot_size(s.mag), tuple(map(whole, from_middle(s.at)))) for s in catalogue.dots]
    check_gap(
        (
            (t.distance(p) - size, t.name + " and " + name)
            for name, size, p in dots
            for t in rim + upright
            if t.name != name
        ),
        TEXT_TO_DOT,
        "nearest dot to a name %.1f units",
    )
