"""The colours: parchment, and on it the washes of land and sea, shaded by the light.

Light falls from the north-west.  All pictures here are (rows, columns, 3), 0 to 1.
"""

import numpy as np
from PIL import Image
from scipy import ndimage

from . import noise
from .world import HEIGHT, WIDTH


def rgb(text):
    return np.array([int(text[k : k + 2], 16) for k in (1, 3, 5)]) / 255


PAPER = rgb("#ecdfc0")
INK = rgb("#3f2d20")
# The sea is darkest along the coast, where the land is to stand out, as old copper plates have it.
DEEP, OPEN, COAST = rgb("#86aaae"), rgb("#93b4b4"), rgb("#6b949d")
MEADOW, FOREST, STEPPE = rgb("#dfd9aa"), rgb("#cdd19c"), rgb("#e6d8a9")
DESERT, JUNGLE, MOOR = rgb("#eed5a3"), rgb("#c1cc92"), rgb("#d9d3b8")
ROCK, SNOW, FEN = rgb("#cdb28c"), rgb("#f2ede0"), rgb("#c9d1ac")


def enlarge(picture, size=(WIDTH, HEIGHT)):
    """A field at the sheet's full size, by bicubic curves."""
    return np.asarray(
        Image.fromarray(picture.astype(np.float32), mode="F").resize(size, Image.BICUBIC)
    )


def paper():
    """Clouds, fibres and a little grain; darker and browner towards the sheet's edge."""
    half = (HEIGHT // 2, WIDTH // 2)
    clouds = (
        0.016 * noise.fractal(half, 260, 5, 901)
        + 0.0022 * noise.waves(half, (3, 22), 910)
        + 0.0022 * noise.waves(half, (22, 3), 911)
    )
    y, x = np.mgrid[0 : half[0], 0 : half[1]]
    edge = np.minimum(np.minimum(x, half[1] - 1 - x), np.minimum(y, half[0] - 1 - y)) * 2.0
    edge += 26 * noise.fractal(half, 90, 4, 920)
    rim = np.exp(-np.maximum(edge, 0) / 70)
    tone = 1 + clouds - 0.10 * rim
    tint = np.array([0.35, 0.6, 1.0]) * 0.10
    return np.stack([enlarge(tone * (1 - tint[k] * rim)) for k in range(3)], axis=2)


def mix(base, colour, share):
    return base + (colour - base) * np.clip(share, 0, 1)[..., None]


def land_wash(heights, rain, warmth, fen, desert):
    """Colours of the land (at the grid of the fields), before the light."""
    wash = np.broadcast_to(STEPPE, heights.shape + (3,)).copy()
    wash = mix(wash, MEADOW, (rain - 0.12) / 0.2)
    wash = mix(wash, FOREST, (rain - 0.3) / 0.4)
    wash = mix(
        wash, JUNGLE, np.clip((rain - 0.2) / 0.3, 0, 1) * np.clip((warmth - 0.72) / 0.2, 0, 1)
    )
    wash = mix(wash, MOOR, (0.37 - warmth) / 0.16)
    wash = mix(wash, DESERT, desert)
    wash = mix(wash, FEN, fen * 0.9)
    wash = mix(wash, ROCK, (heights - 0.16) / 0.4)
    return mix(wash, SNOW, np.clip((0.16 - warmth) / 0.3, 0, 0.6))


def light(heights, steep):
    """Light on the ground: 1 on the flat, more on slopes that face north-west."""
    down, across = np.gradient(ndimage.gaussian_filter(heights, 0.8) * steep)
    facing = (across * 0.65 + down * 0.76) / np.sqrt(1 + across**2 + down**2)
    return 1 + 0.62 * np.clip(facing, -0.40, 0.2)


def sea_wash(away):
    """Colours of the sea by the pixels to the nearest coast."""
    swell = 0.12 * noise.fractal(away.shape, 150, 4, 931)
    wash = np.broadcast_to(OPEN, away.shape + (3,)).copy()
    wash = mix(wash, DEEP, np.clip((away - 110) / 420 + swell, 0, 1) * 0.85)
    return mix(wash, COAST, np.exp(-np.maximum(away - 20, 0) / 60) * (1 + 0.5 * swell))
