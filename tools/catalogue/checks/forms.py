"""The form of the star table: counts, order, names, colours, magnitudes."""

import math

from ..world import GREY, SIGNS, TAU, WHITE, YELLOW


def check(catalogue, report):
    check_rows(catalogue, report)
    check_background(catalogue.background, report)
    check_members(catalogue, report)
    check_signs(catalogue, report)
    check_names(catalogue, report)
    report(
        all(0 <= s.phi < TAU and abs(s.theta) <= math.pi / 2 for s in catalogue.entries),
        "positions in range",
    )


def check_rows(catalogue, report):
    counts = tuple(
        map(
            len,
            (
                catalogue.entries,
                catalogue.background,
                catalogue.members,
                catalogue.markers,
                catalogue.names,
            ),
        )
    )
    report(
        counts == (679, 454, 176, 12, 37),
        "rows %d: background %d, figures %d, markers %d, names %d" % counts,
    )
    report(len(catalogue.by_name) == len(catalogue.entries), "no name twice")
    order = [
        0 if s.background else 1 if s.numbered else 2 if s.marker else 3 for s in catalogue.entries
    ]
    report(order == sorted(order), "order: background, figures, markers, names")


def check_background(stars, report):
    report(
        [s.name for s in stars] == ["_BACKGROUND%03d" % i for i in range(1, 455)]
        and all(s.color == GREY and s.frame == "equatorial" for s in stars),
        "background numbered from 001 to %03d, %s, equatorial" % (len(stars), GREY),
    )
    mags = sorted(s.mag for s in stars) or [0]
    report(
        mags[0] == 4.51 and mags[-1] == 6.0,
        "background magnitudes %.2f to %.2f, the middle one %.2f"
        % (mags[0], mags[-1], mags[len(mags) // 2]),
    )


def check_members(catalogue, report):
    codes, members = list(catalogue.groups), catalogue.members
    report(
        len(codes) == 35 and codes[:12] == [name.upper() for name, _ in SIGNS],
        "constellations %d, the twelve signs first" % len(codes),
    )
    report(
        all(
            [s.name for s in group] == ["_%s%d" % (code, i + 1) for i in range(len(group))]
            for code, group in catalogue.groups.items()
        ),
        "figures numbered from 1 without a gap",
    )
    sizes = sorted(map(len, catalogue.groups.values())) or [0]
    report(
        sizes[0] >= 2 and sizes[-1] <= 9,
        "stars in a figure: "
        + ", ".join("%d x %d" % (sizes.count(n), n) for n in range(0, 10) if n in sizes),
    )
    yellow = [s.name for s in members if s.color == YELLOW]
    report(
        len(yellow) == 1
        and all(s.color in (WHITE, YELLOW) for s in members)
        and all(s.frame == "equatorial" for s in members),
        "figure stars %s, one %s: %s" % (WHITE, YELLOW, " ".join(yellow)),
    )
    check_brightness(catalogue, report)


BRIGHT_STARS, FAINT_STARS = range(17, 25), 101  # brighter than 2; at least fainter than 3


def check_brightness(catalogue, report):
    """A sky's: of every magnitude about three times as many stars as of the one before."""
    mags = sorted(s.mag for s in catalogue.members) or [0]
    report(
        mags[0] == 0.54 and mags[-1] == 4.0,
        "figure magnitudes %.2f to %.2f, mean %.2f" % (mags[0], mags[-1], sum(mags) / len(mags)),
    )
    counts = [sum(m < n for m in mags) for n in (1, 2, 3)] + [len(mags)]
    growth = [b / a if a else math.inf for a, b in zip(counts, counts[1:])]
    faint = sum(m > 3 for m in mags)
    report(
        counts[1] in BRIGHT_STARS and faint >= FAINT_STARS and all(2 <= g <= 4 for g in growth),
        "figure stars brighter than 1, 2, 3 and all: %d, %d, %d, %d; fainter than 3: %d"
        % (*counts, faint),
    )
    ranges = {
        code: (min(s.mag for s in group), max(s.mag for s in group))
        for code, group in catalogue.groups.items()
    }
    all_bright = [code.capitalize() for code, (_, most) in ranges.items() if most <= 2.5]
    all_faint = [code.capitalize() for code, (least, _) in ranges.items() if least >= 3]
    report(
        all_bright and all_faint,
        "figures without a star fainter than 2.5: %s; without one brighter than 3: %s"
        % (", ".join(all_bright), ", ".join(all_faint)),
    )


def check_signs(catalogue, report):
    report(
        [(s.name, "%.5f" % s.phi) for s in catalogue.markers]
        == [("_" + name.upper(), start) for name, start in SIGNS]
        and all(
            s.frame == "ecliptic" and s.theta == 0 and s.mag == 1 and s.color == WHITE
            for s in catalogue.markers
        ),
        "markers at the starts of the sign table",
    )
    names = catalogue.sign_names
    report(
        [s.name for s in names] == [name for name, _ in SIGNS]
        and all(s.color == WHITE and s.mag == 0 for s in names),
        "sign names %d" % len(names),
    )


def check_names(catalogue, report):
    others, stars = catalogue.other_names, catalogue.named_stars
    report(
        len(others) == 25
        and len(stars) == 1
        and all(s.mag in (0.0, 1.0) for s in others)
        and all(s.color in (WHITE, YELLOW) for s in others),
        "equatorial names %d, the star with a name is %s"
        % (len(others), " ".join(s.name for s in stars)),
    )
    named = {s.name.upper() for s in catalogue.names}
    band = [s.name for s in others if s not in stars and s.name.upper() not in catalogue.groups]
    report(
        all(code in named for code in catalogue.groups) and len(band) == 1,
        "every figure has its name; the dense band is %s" % " ".join(band),
    )
