"""The stars and the figures on the sphere.  All lengths are degrees."""

import math
from itertools import combinations

from ..sphere import NORTH, angle, angles, arc_arc_distance, arc_distance, dot, even_points
from ..world import TAU, sign_range

COMPACT, ORDINARY, LONG = (4.0, 9.0), 25.0, (30.0, 40.0)  # how far figures reach across
COMPACT_FIGURES, LONG_FIGURES = range(4, 7), range(2, 4)
ZODIAC_LATITUDE = 18.0
STAR_GAP = 0.3  # between any two stars
FIGURE_STAR_GAP = 1.2  # between background and figures
FIGURE_GAP = 2.5
POLE_STAR_OFF, POLE_STAR_SPACE = 1.0, 2.0  # from the celestial pole; to the next star
HOLE, DARK = 22.0, 12.5  # radius of circles without a figure, a star


def check(catalogue, report):
    check_sizes(catalogue.figures, report)
    check_zodiac(catalogue.figures[:12], report)
    check_stars(catalogue.dots, report)
    check_pole_star(catalogue, report)
    check_figure_gaps(catalogue.figures, report)
    check_holes(catalogue, report)


def check_sizes(figures, report):
    def listed(some):
        return ", ".join("%s %.1f" % (f.name, f.span) for f in some)

    by_size = sorted(figures, key=lambda f: f.span)
    compact = [f for f in by_size if f.span <= COMPACT[1]]
    large = [f for f in by_size if f.span > ORDINARY]
    others = [f.span for f in by_size if f not in compact and f not in large]
    report(
        len(compact) in COMPACT_FIGURES and compact[0].span >= COMPACT[0],
        "compact figures, degrees across: " + listed(compact),
    )
    report(True, "the other figures %.1f to %.1f degrees across" % (others[0], others[-1]))
    report(
        len(large) in LONG_FIGURES and all(LONG[0] <= f.span <= LONG[1] for f in large),
        "large figures, degrees across: " + listed(large),
    )


def check_zodiac(figures, report):
    spare, high = 99.0, 0.0
    for i, figure in enumerate(figures):
        start, end = sign_range(i)
        for s in figure.stars:
            lon, lat = angles(s.at)
            if i == 11 and lon < math.pi:
                lon += TAU
            spare = min(spare, math.degrees(lon - start), math.degrees(end - lon))
            high = max(high, abs(math.degrees(lat)))
    report(
        spare > 0 and high <= ZODIAC_LATITUDE,
        "zodiac figures inside their signs: nearest boundary %.2f degrees, "
        "greatest latitude %.1f" % (spare, high),
    )


def near_stars(dots):
    """Pairs of stars less than about 11 degrees apart, as (degrees, star, star)."""
    for i, a in enumerate(dots):
        for b in dots[i + 1 :]:
            if b.at[2] - a.at[2] > 0.2:
                break
            if dot(a.at, b.at) >= 0.98:
                yield angle(a.at, b.at), a, b


def check_stars(dots, report):
    near = list(near_stars(dots))
    least, a, b = min(near, key=lambda pair: pair[0])
    report(
        least >= STAR_GAP, "nearest two stars %.2f degrees apart (%s %s)" % (least, a.name, b.name)
    )
    among = min((d for d, a, b in near if a.background and b.background), default=99.0)
    to_figures = min((d for d, a, b in near if a.background != b.background), default=99.0)
    report(
        to_figures >= FIGURE_STAR_GAP,
        "background stars %.2f degrees from one another, %.2f from figure stars"
        % (among, to_figures),
    )


def check_pole_star(catalogue, report):
    pole_star = catalogue.named_stars[0]
    own = angle(pole_star.eq, NORTH)
    others = catalogue.background + catalogue.members
    next_one, name = min((angle(s.eq, NORTH), s.name) for s in others)
    report(
        own <= POLE_STAR_OFF and next_one > own + POLE_STAR_SPACE,
        "%s %.2f degrees from the celestial pole, the next star (%s) %.2f"
        % (pole_star.name, own, name, next_one),
    )


def check_figure_gaps(figures, report):
    gap, f, g = min(
        (
            (min(arc_arc_distance(*x, *y) for x in f.arcs for y in g.arcs), f, g)
            for f, g in combinations(figures, 2)
            if angle(f.centre, g.centre) < 60
        ),
        key=lambda found: found[0],
    )
    report(
        gap >= FIGURE_GAP,
        "nearest two figures %.1f degrees apart (%s and %s), none crossing" % (gap, f.name, g.name),
    )


def check_holes(catalogue, report):
    """The widest empty circles."""
    hole, star = (0.0, ()), 0.0
    for v in even_points(3000):
        figure = min(
            arc_distance(v, *arc)
            for f in catalogue.figures
            if angle(v, f.centre) < 70
            for arc in f.arcs
        )
        hole = max(hole, (figure, v))
        star = max(star, min(angle(v, s.at) for s in catalogue.dots if abs(s.at[2] - v[2]) < 0.6))
    lon, lat = (math.degrees(x) for x in angles(hole[1]))
    report(
        hole[0] <= HOLE,
        "widest circle without a figure: radius %.1f "
        "degrees at longitude %.0f, latitude %.0f" % (hole[0], lon, lat),
    )
    report(star <= DARK, "widest circle without a star: radius %.1f degrees" % star)
