"""Names and figures on the star map.  Lengths are degrees or units of the map."""

import math
from itertools import combinations

from ..lettering import map_reach, name_box
from ..plane import box_gap, meeting_point
from ..sphere import angle, angles, vec

NAME_GAP = 0.5  # degrees from a name to a figure or another name
NAME_REACH = 6.5  # degrees at most from a name to its own figure
TEXT_GAP = 2.0  # units between two names


def check(catalogue, report):
    check_names(catalogue, report)
    check_maps(catalogue, report)


def check_names(catalogue, report):
    """Whatever way the sky is turned."""
    near, far, strange, pair = (99.0, ""), (0.0, ""), (99.0, ""), (99.0, "")
    for s in catalogue.names:
        for figure in catalogue.figures:
            gap = figure.distance(s.at) - map_reach(s.name, s.mag)
            if figure.code == s.name.upper():
                near, far = min(near, (gap, s.name)), max(far, (gap, s.name))
            else:
                strange = min(strange, (gap, "%s to %s" % (s.name, figure.name)))
    for s, t in combinations(catalogue.names, 2):
        gap = angle(s.at, t.at) - map_reach(s.name, s.mag) - map_reach(t.name, t.mag)
        pair = min(pair, (gap, s.name + " and " + t.name))
    report(
        near[0] >= NAME_GAP and far[0] <= NAME_REACH,
        "names stand %.1f (%s) to %.1f (%s) degrees clear of their figures" % (near + far),
    )
    report(
        strange[0] >= NAME_GAP,
        "names stand at least %.1f degrees clear of other figures (%s)" % strange,
    )
    report(
        pair[0] >= NAME_GAP,
        "nearest two names on the star map, turned as "
        "they may be, %.1f degrees clear (%s)" % pair,
    )


def map_point(eq, sidereal, latitude):
    """Where the map shows an equatorial vector: x right, y down from the zenith.

    None below the horizon.  Sidereal time and latitude are in radians.
    """
    ra, dec = angles(eq)
    h = vec(sidereal - ra, dec)
    a = math.pi / 2 - latitude
    c, s = math.cos(a), math.sin(a)
    azimuth, altitude = angles((c * h[0] - s * h[2], h[1], s * h[0] + c * h[2]))
    if altitude < 0:
        return None
    rho = (math.pi / 2 - altitude) * 0.6366197723675814 * 180
    return rho * math.sin(azimuth), -rho * math.cos(azimuth)


def visible_lines(figures, places):
    """For every figure that shows any its lines on the map and the box around them."""
    for f in figures:
        ends = [(places[f.stars[a].name], places[f.stars[b].name]) for a, b in f.lines]
        lines = [(a, b) for a, b in ends if a and b]
        if lines:
            xs, ys = zip(*(p for line in lines for p in line))
            yield lines, (min(xs), min(ys), max(xs), max(ys))


def check_maps(catalogue, report):
    """The map itself at many places and hours."""
    low, met, maps = (99.0, ""), 0, 0
    for latitude in (-80, -60, -35, -15, 0, 20, 40, 60, 80):
        for hour in range(0, 24, 2):
            maps += 1
            places = {
                s.name: map_point(s.eq, math.radians(hour * 15 + 7), math.radians(latitude))
                for s in catalogue.members + catalogue.names
            }
            boxes = [
                (s.name, name_box(s.name, s.mag, *places[s.name]))
                for s in catalogue.names
                if places[s.name]
            ]
            for (name, box), (name2, box2) in combinations(boxes, 2):
                low = min(low, (box_gap(box, box2), name + " and " + name2))
            shown = visible_lines(catalogue.figures, places)
            for (lines, box), (lines2, box2) in combinations(shown, 2):
                if box_gap(box, box2) <= 0:
                    met += sum(1 for x in lines for y in lines2 if meeting_point(*x, *y))
    report(met == 0, "%d star maps: lines of different figures crossing %d" % (maps, met))
    report(low[0] >= TEXT_GAP, "%d star maps: nearest two names %.1f units (%s)" % ((maps,) + low))
