"""What is given: the sheet, its projection and the thirteen known places.

Pixels are continuous: (0, 0) is the sheet's top left corner, so the middle of the
first pixel is (0.5, 0.5).  Degrees here are for people; east and north are positive.
"""

from dataclasses import dataclass

import numpy as np

WIDTH, HEIGHT = 4316, 3266  # pixels
CENTRE_X, EQUATOR_Y = 1768.0, 3194.0  # pixels: longitude 0, latitude 0
LAT_SCALE = 2987.9749016072433  # pixels per radian of latitude
LON_SCALE = 2992.1129301276324  # pixels per radian of longitude at the equator
WEST, EAST, SOUTH, NORTH = -45.0, 45.0, 0.0, 60.0
DEGREE = LAT_SCALE * np.pi / 180  # pixels per degree of latitude


def to_pixel(lon, lat):
    """Degrees to pixels (x, y); numbers or arrays."""
    lon, lat = np.radians(lon), np.radians(lat)
    return CENTRE_X + LON_SCALE * lon * np.cos(lat), EQUATOR_Y - LAT_SCALE * lat


def to_degrees(x, y):
    """Pixels to degrees (longitude, latitude); numbers or arrays."""
    lat = (EQUATOR_Y - y) / LAT_SCALE
    return np.degrees((x - CENTRE_X) / (LON_SCALE * np.cos(lat))), np.degrees(lat)


@dataclass(frozen=True)
class Place:
    name: str
    lat: float
    lon: float
    shore: float  # pixels from the mark to the nearest shore; 0: as the land falls
    kind: str

    @property
    def pixel(self):
        return tuple(float(v) for v in to_pixel(self.lon, self.lat))


PLACES = (
    Place("Wendmark", 40.5, -20.9, 24, "port by the mouth of the Hest"),
    Place("Morvay", 37.7, -16.4, 0, "river town"),
    Place("Istene", 27.4, 3.3, 0, "river town"),
    Place("Paldrick", 34.5, 11.1, 0, "town under the mountains"),
    Place("Vossenfel", 11.5, 25.3, 24, "southern port"),
    Place("Quarrelund", 21.9, 33.9, 24, "eastern port"),
    Place("Ebb", 13.4, 8.8, 24, "port among tidal marshes"),
    Place("Solvane", 32.1, -4.7, 0, "town on a lake"),
    Place("Hestmoor", 44.4, -12.2, 0, "town on the moors"),
    Place("Sarrow", 31.0, -16.3, 24, "port in a sheltered bay"),
    Place("Ulmet", 24.4, -19.7, 24, "port on the cape"),
    Place("Dravenne", 23.3, 26.7, 0, "town at a pass, by the desert"),
    Place("Kessa", 21.0, 5.1, 24, "port where the Kessune bends"),
)
