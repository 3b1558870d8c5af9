"""The country: everything the sheet shows, worked out before a line is drawn."""

import numpy as np

from . import climate, graticule, land, noise, paint, relief, rivers
from .drawings import DESERTS, MARSHES
from .world import PLACES, to_degrees


class Country:
    """Fields on the land's grid: land, lakes, heights, rain, warmth, fen, desert, wood; and the rivers."""

    def __init__(self):
        self.land, self.lakes = land.field(), relief.lake_field()
        x, y = land.pixel_grids()
        self.lon, self.lat = to_degrees(x, y)
        self.fen, self.desert = self._blots(MARSHES, 881), self._blots(DESERTS, 882)
        rows, columns = land.pixel_grids(relief.GRID)[0].shape
        coarse = np.s_[: 2 * rows : 2, : 2 * columns : 2]
        ground, lakes, desert = self.land[coarse], self.lakes[coarse], self.desert[coarse]
        rain = climate.rain(ground > 0, relief.raw_heights(ground), self.lat[coarse])
        # What falls on sand feeds no river.
        fed = rain * (1 - desert / self.desert.max())
        heights, drainage = relief.heights(ground, lakes, fed / fed[ground > 0].mean())
        self.rivers = rivers.trace(drainage, climate.dunes(desert, heights) > 0, self.land)
        self.heights, self.rain = self._finer(heights), self._finer(rain)
        self.warmth = climate.warmth(self.heights, self.lat)
        self.fen *= self.heights < 0.2
        self.wood = noise.fractal(self.land.shape, 75, 4, 883)
        self.valid = graticule.valid(x, y)
        for place in PLACES:
            column, row = (int(at / land.GRID) for at in place.pixel)
            assert self.land[row, column] > 0, f"{place.name} stands in the sea"

    def _finer(self, field):
        return paint.enlarge(field, (self.land.shape[1], self.land.shape[0])).astype(float)

    def _blots(self, blots, seed):
        ragged = 0.35 * noise.fractal(self.land.shape, 60, 4, seed)
        field = np.zeros(self.land.shape)
        for lon, lat, radius in blots:
            away = (
                np.hypot((self.lon - lon) * np.cos(np.radians(self.lat)), self.lat - lat) / radius
            )
            field = np.maximum(field, np.clip(1.35 - away - ragged, 0, 0.6) / 0.6)
        return field * (self.land > 0)
