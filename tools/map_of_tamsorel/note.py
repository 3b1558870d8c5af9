"""The note that explains the picture, made from what is on it."""

from . import check, graticule, marks, names as given, ornaments
from .world import PLACES

KINDS = {
    "ocean": "Great seas",
    "sea": "Seas and straits",
    "bay": "Bays and sounds",
    "region": "Countries",
    "land": "Lesser lands",
    "range": "Mountain ranges",
    "hills": "Hills and fells",
    "forest": "Forests",
    "desert": "Deserts",
    "marsh": "Marshes",
    "lake": "Lakes",
    "isle": "Great islands",
    "island": "Islands",
    "cape": "Capes",
    "river": "Rivers",
}

TEXT = """# The map of Tamsorel

`tamsorel.jpg` is the map on which a place is chosen by a click: 4316 × 3266 pixels,
8-bit RGB, JPEG without chroma subsampling. Everything on it but the thirteen places is
invented for it; no map of another world, real or imagined, served as a pattern.

## How it was made

    /usr/bin/python3 tools/make_map.py

writes the picture and this note, the same bytes every time (on one and the same release
of the system; another release of the drawing library may round a few pixels otherwise).
`--check` measures the picture as it stands.

The outlines of the lands, firths and headlands, the crests of the ranges, the valleys of
the great rivers and the names were drawn up by hand; noise with fixed seeds roughens the
coasts, cuts the fjords and breaks the crests. Water then runs over the ground and wears
it down, hollows are filled to their brim, and the rivers follow the water: each runs
strictly downhill to the sea or to a greater river, and grows on its way, which the tool
asserts. Rain comes with the west wind in the north and the east wind in the south and is
lost on the ranges; from rain, warmth and height follow the colours and where woods, dunes
and fens stand. What falls on sand feeds no river, and none rises in dunes; a brook that
would run under a name rises below it.

## Projection

Sinusoidal, angles in radians, x to the right and y down in pixels from the top left corner:

    latitude  = (3194 − y) / 2987.9749016072433
    longitude = (x − 1768) / (2992.1129301276324 · cos latitude)

The map is valid from 0° to 60° north and from 45° west to 45° east, within its frame; the
parchment around it belongs to no place. Parallels and meridians are drawn every {step}°.

## What can be measured on it

- The {places} places: a disc of {disc}, radius {disc_r} pixels, in a ring of {ring} out to
  {ring_r} pixels with a dark rim out to {rim_r}; its middle is the place's own pixel.
- The {crossings} crossings of the net: a dot of {dot}, radius {dot_r} pixels, on a disc of
  {pearl}, radius {pearl_r} pixels. No name, mark or ornament covers any of them.
- Along every coast the land is lighter than the sea beside it, by a contrast of {shore} or
  more; every name has one of {text} or more with its ground.
- No letter stands within {room:.0f} pixels of a place's middle: there the program draws its
  ring. None touches a river, and the names of waters keep {off:.0f} pixels off the coast.
- The bands of the frame meet at its corners. The smallest names are set at {small:.0f}
  pixels to the em, the degrees at {degrees:.0f}.

## Places

| name | latitude | longitude | kind |
|---|---|---|---|
{rows}

## Other names

{names}

## Typeface

EB Garamond by Georg Duffner, under the SIL Open Font License 1.1. The two fonts and the
licence lie in `tools/map_of_tamsorel/fonts/`.
"""


def _colour(c):
    return "#" + "".join(f"{round(v * 255):02x}" for v in c)


def _wrapped(text, width=92):
    lines, line = [], ""
    for word in text.split(" "):
        if line and len(line) + 1 + len(word) > width:
            lines.append(line)
            line = "  " + word
        else:
            line = f"{line} {word}" if line else word
    return "\n".join(lines + [line])


def write(path, names):
    """Writes the note; names are the labels as they stand on the picture."""
    rows = "\n".join(
        f"| {p.name} | {p.lat}° N | {abs(p.lon)}° {'E' if p.lon > 0 else 'W'} | {p.kind} |"
        for p in PLACES
    )
    told = "\n".join(
        _wrapped(
            f"- {title}: "
            + ", ".join(
                sorted(
                    t.text.title() if t.text.isupper() else t.text for t in names if t.kind == kind
                )
            )
        )
        for kind, title in KINDS.items()
    )
    path.write_text(
        TEXT.format(
            step=graticule.STEP,
            shore=check.LEAST_SHORE,
            text=check.LEAST_TEXT,
            room=check.LEAST_OFF_MARK,
            off=check.LEAST_OFF_COAST,
            small=min(style.size for style in given.STYLES.values()),
            degrees=ornaments.FIGURES.size,
            places=len(PLACES),
            crossings=len(graticule.crossings()),
            rows=rows,
            names=told,
            disc=_colour(marks.DISC_COLOUR),
            disc_r=marks.DISC,
            ring=_colour(marks.RING_COLOUR),
            ring_r=marks.RING,
            rim_r=marks.RIM,
            dot=_colour(graticule.DOT_COLOUR),
            dot_r=graticule.DOT,
            pearl=_colour(graticule.PEARL_COLOUR),
            pearl_r=graticule.PEARL,
        ),
        encoding="utf-8",
    )
