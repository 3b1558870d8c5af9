"""What the world and its charts give: the tilt, the turn, the colours and the signs."""

import math

TAU = 2 * math.pi

TILT = 0.3665191429188092  # between ecliptic and equator, radians
TURN = -math.radians(18)  # how far the charts turn numbered stars in ecliptic longitude

# With which the program opens: noon of the first day of the year 720 at Wendmark.
FIRST_MOMENT = 258840.0  # days since noon of the first day
FIRST_LATITUDE = math.radians(40.5)

# Of the wheel that the manual shows: an evening at Wendmark on which the planets stand so close
# together that no chord of theirs cuts a name.
SHOWN_MOMENT = 278257.373

WHITE, YELLOW, GREY = "#f4f4f3", "#fef651", "#adadad"

SIGNS = [  # name, start in radians of ecliptic longitude as it is written in the catalogue
    ("Gimbral", "0.02106"),
    ("Sevrino", "0.54465"),
    ("Lothac", "1.05089"),
    ("Pemi", "1.59169"),
    ("Istramondel", "2.13298"),
    ("Felum", "2.69112"),
    ("Corra", "3.19759"),
    ("Bessim", "3.70378"),
    ("Wen", "4.20993"),
    ("Ostrel", "4.71598"),
    ("Quelin", "5.23987"),
    ("Voni", "5.74599"),
]


def sign_range(i):
    """Start and end of a sign in radians; the last one ends beyond a full turn."""
    start = float(SIGNS[i][1])
    end = float(SIGNS[(i + 1) % 12][1]) + (TAU if i == 11 else 0)
    return start, end
