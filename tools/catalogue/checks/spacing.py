"""How the background stars stand: crowded in the band, apart outside it.  Degrees."""

import math
from statistics import median

from .. import band
from ..background import IN_BAND
from ..lettering import dot_size
from ..sphere import angle

CROWDED = 2.0  # a middle star of the band has its neighbour no farther off
APART = 3.0  # and one outside the band no nearer
CLUSTER_GAP = 1.31  # from a star of a cluster to the next
CLUSTER = range(6, 8)  # how many stars stand in one
DOUBLE_GAP = 0.76
NAME_ROUND = 7.0  # the circle about the band's name in which stars are counted
SMALLEST = 260  # stars at most whose dots are of the smallest size


def check(catalogue, report):
    stars = catalogue.background
    near = {s: min(angle(s.at, t.at) for t in stars if t is not s) for s in stars}
    inside = [s for s in stars if band.density(s.at) > IN_BAND]
    outside = [s for s in stars if band.density(s.at) <= IN_BAND / 2]
    crowded, apart = (median(near[s] for s in group) for group in (inside, outside))
    report(
        crowded <= CROWDED and apart >= APART,
        "nearest neighbour of a background star: in the band %.2f degrees for the middle one "
        "of %d, outside %.2f of %d" % (crowded, len(inside), apart, len(outside)),
    )
    faint, bright = (median(s.mag for s in group) for group in (inside, outside))
    report(
        faint > bright + 0.3,
        "the middle magnitude in the band is %.2f, outside %.2f" % (faint, bright),
    )
    smallest = sum(dot_size(s.mag) == 0.4 for s in stars)
    report(
        smallest <= SMALLEST,
        "background stars drawn in the smallest size %d of %d" % (smallest, len(stars)),
    )
    check_groups([s for s in stars if s not in inside], catalogue, report)
    check_name(catalogue, report)
    check_rift(catalogue, report)


def groups(stars, gap):
    """The stars in groups of those that are joined by steps of at most that many degrees."""
    left, found = set(stars), []
    while left:
        group, todo = [], [left.pop()]
        while todo:
            s = todo.pop()
            group.append(s)
            close = {t for t in left if angle(s.at, t.at) <= gap}
            left -= close
            todo += close
        found.append(group)
    return found


def check_groups(stars, catalogue, report):
    """Clusters and doubles where the band does not hide them."""
    sizes = [len(g) for g in groups(stars, CLUSTER_GAP)]
    clusters = sum(n in CLUSTER for n in sizes)
    report(
        3 <= clusters <= 5 and max(sizes) in CLUSTER,
        "clusters of six or seven stars outside the band's clouds %d, no group larger than %d"
        % (clusters, max(sizes)),
    )
    doubles = sum(len(g) == 2 for g in groups(catalogue.background, DOUBLE_GAP))
    report(doubles >= 5, "double stars %d" % doubles)


def check_name(catalogue, report):
    name = catalogue.by_name[band.NAME]
    count = sum(angle(name.at, s.at) < NAME_ROUND for s in catalogue.background)
    even = len(catalogue.background) * (1 - math.cos(math.radians(NAME_ROUND))) / 2
    report(
        count >= 3 * even,
        "background stars within %.0f degrees of the name %s %d, in an even sky %.1f"
        % (NAME_ROUND, name.name, count, even),
    )


def check_rift(catalogue, report):
    """Stars in the rift, and as close to the band's middle where there is none."""

    def share(in_rift):
        """Stars to a degree of the band within a degree of its middle or the rift's."""
        length = band.RIFT_TO - band.RIFT_FROM - 20
        count = 0
        for s in catalogue.background:
            lon = math.degrees(band.longitude(s.at)) % 360
            along = band.RIFT_FROM + 10 < lon < band.RIFT_TO - 10
            middle = band.rift_middle(lon) if in_rift else 0
            count += along == in_rift and abs(band.beside(s.at) - middle) < 1
        return count / (length if in_rift else 340 - length)

    dark, bright = share(True), share(False)
    report(
        dark <= bright / 3,
        "stars to ten degrees of the rift's middle %.1f, of the band's elsewhere %.1f"
        % (10 * dark, 10 * bright),
    )
