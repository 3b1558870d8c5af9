"""Where every name stands.

Names are placed one after the other.  Each tries all the places around its figure and
takes the one that costs least: near its figure and clear of whatever stands already.
"""

import math
from dataclasses import dataclass

from . import band
from .lettering import map_reach, name_box, text_width
from .plane import between
from .sphere import angle, angles, on_page, to_ecliptic, vec
from .wanderers import planets
from .wheel import (
    INNER_PATH,
    OUTER_PATH,
    chord_gap,
    circle_gap,
    from_middle,
    longitude,
    on_rim,
    rim_interval,
)
from .world import FIRST_MOMENT, SHOWN_MOMENT, SIGNS, TAU, WHITE, YELLOW, sign_range

POLE_STAR = "Hathel"
POLE_STAR_AT = to_ecliptic(vec(math.radians(40.0), math.radians(89.6)))


@dataclass(frozen=True)
class Label:
    """A name; one that has a magnitude is a star too."""

    name: str
    frame: str
    color: str
    at: tuple  # ecliptic vector; names are shown where they stand
    mag: float = 0


BAND_ROOM = 3.0  # degrees around the band's name; more is no better
FIRST_START_GAP = 2.5  # units from a name to the circle and the chords of the first start


def first_start_cost(name, p):
    """What it costs an upright name to come near a line that a new user's first wheel has."""
    box = name_box(name, 0, *from_middle(p))
    return 3 * max(0, FIRST_START_GAP - circle_gap(box), FIRST_START_GAP - chord_gap(box))


def clearance(name, p, own, figures, labels):
    """Degrees between a name at p and the nearest name or figure but its own.

    Counted so that it holds on the star map however the sky is turned; half a degree
    more is left around the star with a name.
    """
    reach = map_reach(name, 0)
    gaps = [f.distance(p) - reach for f in figures if f is not own and angle(p, f.centre) < 40]
    gaps += [
        angle(p, t.at) - reach - map_reach(t.name, t.mag) - (0.5 if t.mag else 0) for t in labels
    ]
    return min(gaps)


SIGN_LATITUDE = -6.5  # degrees
SIGN_REACH = 6.0  # degrees at most from a sign's name to its figure


def sign_label(i, figures, labels):
    """A sign's name, as far south of the ecliptic as the labels of the planets want.

    Along the wheel's outer path it is centred in its sign.
    """
    name = SIGNS[i][0]
    start, end = sign_range(i)
    lon = (start + end) / 2 - text_width(name) / OUTER_PATH / 2

    def cost(lat):
        at = vec(lon, math.radians(lat))
        gap = clearance(name, at, None, figures, labels)
        away = figures[i].distance(at) - map_reach(name, 0)
        return abs(lat - SIGN_LATITUDE) + 5 * max(0, 1.2 - gap) + 5 * max(0, away - SIGN_REACH)

    lat = min((k / 10 for k in range(-100, 1)), key=cost)
    return Label(name, "ecliptic", WHITE, vec(lon, math.radians(lat)))


def rim_crossings(zodiac):
    """Longitudes at which a line of the zodiac passes through the strip of the rim's names."""
    points = [
        between(from_middle(a), from_middle(b), k / 60)
        for f in zodiac
        for a, b in f.arcs
        for k in range(61)
    ]
    return [longitude(x, y) for x, y in points if 167 < math.hypot(x, y) < 177]


def rim_cost(name, lon, figure, crossings, labels):
    """What it costs a name to run along the rim from a longitude on.

    It keeps clear of the path's ends, of the other names there (all on one path, as in
    black and white), of the planets where they stand when the program is first opened and
    on the wheel that the manual shows, and of the lines, and wants its middle beside the figure.
    """
    start, end = rim_interval(name, lon, INNER_PATH)
    gap = min(start, TAU * INNER_PATH - end) - 2
    there = [(t.name, t.at) for t in labels if on_rim(t.at)]
    for moment in (FIRST_MOMENT, SHOWN_MOMENT):
        there += planets(moment)
    for other, at in there:
        start2, end2 = rim_interval(other, angles(at)[0], INNER_PATH)
        gap = min(gap, max(start2 - end, start - end2))
    width = text_width(name) / INNER_PATH
    to_line = INNER_PATH * min(max(lon - line, line - lon - width) for line in crossings)
    off = (lon + width / 2 - angles(figure.centre)[0] + math.pi) % TAU - math.pi
    return 2 * max(0, 10 - gap) + 3 * max(0, 3 - to_line) + 0.15 * math.degrees(abs(off))


def figure_label(figure, figures, crossings, labels):
    """The name of a figure outside the zodiac, from 0.8 to 5 degrees clear of it.

    Southern names run along the wheel's rim, northern ones stand upright inside it.
    """
    southern = angles(figure.centre)[1] < 0
    reach = map_reach(figure.name, 0)
    best = (math.inf, None)
    for gx in range(-50, 51):
        for gy in range(-50, 51):
            x, y = gx * 0.5, gy * 0.5
            p = on_page(figure.centre, x, y)
            lon, lat = angles(p)
            if lat > math.radians(4) if southern else lat < math.radians(13):
                continue
            away = figure.distance(p) - reach
            if not 0.8 <= away <= 5:
                continue
            gap = clearance(figure.name, p, figure, figures, labels)
            cost = away * 1.5 + math.hypot(x, y) * 0.12 + abs(x) * 0.15 + 2 * max(0, 5 - gap)
            if southern:
                # North of the figure where there is room: seen from the
                # northern lands, the name rises with its figure.
                cost += rim_cost(figure.name, lon, figure, crossings, labels) + y * 0.12
            else:
                cost += first_start_cost(figure.name, p)
            if cost < best[0]:
                best = (cost, p)
    return Label(figure.name, "equatorial", YELLOW if southern else WHITE, best[1])


def band_label(figures, labels):
    """The band's name: among the northern figures, in stars and where none of them is near."""
    best = (-math.inf, None)
    for half_degrees in range(720):
        for lat in (-4.5, -3, -1.5, 0, 1.5, 3, 4.5):
            p = band.point(half_degrees / 2, lat)
            if angles(p)[1] > math.radians(14):
                room = min(BAND_ROOM, clearance(band.NAME, p, None, figures, labels))
                room += 3 * math.log(band.density_around(p, 5.0))
                room -= first_start_cost(band.NAME, p)
                if room > best[0]:
                    best = (room, p)
    return Label(band.NAME, "equatorial", WHITE, best[1])


def place_names(zodiac, others):
    """The labels: the signs, the other figures, the band and the star with a name."""
    figures = zodiac + others
    labels = [Label(POLE_STAR, "equatorial", WHITE, POLE_STAR_AT, 1.0)]
    for i in range(len(SIGNS)):
        labels.append(sign_label(i, figures, labels))
    crossings = rim_crossings(zodiac)
    for figure in others:
        labels.append(figure_label(figure, figures, crossings, labels))
    labels.append(band_label(figures, labels))
    return labels[1:] + labels[:1]
