"""The note that tells where the catalogue comes from and how it is laid out."""

import math

from . import band
from .drawings import YELLOW_STAR
from .names import POLE_STAR
from .sphere import angles, to_equatorial
from .world import SIGNS, TAU, WHITE, YELLOW, sign_range

NOTE_HEAD = """# The star catalogue

`star_catalogue.csv` and `constellation_lines.csv` hold the fixed stars of
Veyruna: 454 background stars, 176 stars in 35 constellations joined by 162
lines, 12 markers at the starts of the signs and 37 names.

## Where it comes from

The sky is invented for this world. Every figure was drawn by hand as a small
picture of something and then laid on the sphere; the names are made up in the
tongue of the signs. Nothing is taken from a catalogue of real stars and no real
constellation served as a pattern. The background stars come from a generator
with a fixed seed. All of it is written by

    python3 tools/make_catalogue.py

which yields the same files every time, this note among them: to change the sky,
change the drawings in that tool. `python3 tools/make_catalogue.py --check`
measures the files as they stand.

## The columns

`star_catalogue.csv` has `name,frame,color,phi,theta,magnitude`; phi is the right
ascension or ecliptic longitude, theta the declination or ecliptic latitude, both
in radians, by `frame`. The form of a name tells what the row is: `_BACKGROUND001`
a background star, `_GIMBRAL3` the third star of a figure, `_GIMBRAL` the marker of
a sign, `Gimbral` a name. Magnitude 0 means a bare name; %(pole)s alone is a star
and a name in one. `constellation_lines.csv` has `from,to`.

## How the sky is laid out

- The charts turn all numbered stars back by 18 degrees along the ecliptic, and
  leave markers and names alone. The rows are chosen so that after this turn each
  zodiac figure stands inside its sign and each name beside its figure. The
  positions below are those seen on the charts, after the turn.
- The star map has south at the top and west at the right, and the figures are
  drawn for it: they stand upright when they culminate. On the wheel, which shows
  the sky the other way round, they appear as in a mirror.
- The zodiac figures lie mostly north of the ecliptic so that the wheel shows
  them; a stem, a mast or a blade reaches across it beside the sign's name. The
  names of the signs are centred in their signs along the wheel's outer path; on the
  star map they stand about 6.5 degrees south of the ecliptic, out of the way of the
  planets' labels.
- Figures are not all of one size: some are compact, so that a handful of stars is
  seen as one thing at once, and three are large.
- Every figure star stands on whole units of the wheel. The charts draw dots on
  whole units and lines where they are; so on the wheel a line ends in its dots.
- Names of southern figures run along the wheel's inner path and are %(yellow)s;
  they keep clear of the signs' names too, because in black and white all of them
  share that path, and of longitude 0, where the path ends. Names further north
  than 12 degrees are drawn upright beside their figures and are %(white)s.
- A name stays clear of its own figure, of the others and of the other names
  however the sky is turned on the star map. On the wheel with which the program
  first opens, no upright name is cut by the circle of the latitude or a chord, and
  no southern name lies under the label of a planet; nor does one on the wheel that
  the manual shows.
- Of every magnitude there are about three times as many stars as of the one before.
  Pemi blazes, Felum and Vellio are faint throughout. One star is yellow: %(flame)s,
  the flame in the lantern %(lantern)s.
- %(pole)s stands 0.4 degrees from the celestial north pole, alone in a dark round.
- %(band)s is the dense band, a slightly winding belt around the sphere, broadest in the
  far north beside %(pole)s and narrowest in the far south. Its stars are the faint ones
  and stand in clouds; for a quarter of its way a dark rift parts it. Its name stands
  among its stars, north of %(under)s.
- Outside the band the background stars are brighter and stand apart, but for
  clusters of six or seven and some doubles.

## The constellations

Longitude and latitude are ecliptic, of the middle of the figure; the declination
tells from which places of the world it is seen.

| code | name | depicts | stars | lines | longitude | latitude | declination |
|---|---|---|---|---|---|---|---|
"""


def sign_at(lon):
    """The name of the sign in which an ecliptic longitude (radians from 0 to a turn) lies."""
    for i, (name, _) in enumerate(SIGNS):
        start, end = sign_range(i)
        if start <= lon < end or start <= lon + TAU < end:
            return name


NOTE_FINDINGS = """
## What it measures

What `--check` says of these files; lengths are degrees of the sky or units of the charts.

    """


def note_text(figures, labels, findings):
    """The note; findings are the lines that the checks say of the sky."""
    band_lon = next(angles(t.at)[0] for t in labels if t.name == band.NAME)
    out = NOTE_HEAD % {
        "pole": POLE_STAR,
        "band": band.NAME,
        "under": sign_at(band_lon),
        "flame": YELLOW_STAR,
        "lantern": "Ulvane",
        "yellow": "yellow (%s)" % YELLOW,
        "white": "white (%s)" % WHITE,
    }
    for f in figures:
        lon, lat = (math.degrees(x) for x in angles(f.centre))
        declination = math.degrees(angles(to_equatorial(f.centre))[1])
        out += "| %s | %s | %s | %d | %d | %.0f° | %+.0f° | %+.0f° |\n" % (
            f.code,
            f.name,
            f.depicts,
            len(f.stars),
            len(f.lines),
            lon,
            lat,
            declination,
        )
    return out + NOTE_FINDINGS + "\n    ".join(findings) + "\n"
