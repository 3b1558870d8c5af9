"""Finds every name its room: near where it belongs, off whatever must stay visible."""

import numpy as np
from PIL import Image, ImageDraw
from scipy import ndimage

from . import graticule, lettering, lines, marks
from .land import GRID
from .names import NAMES, RIVERS, STYLES, UNDER
from .world import HEIGHT, PLACES, WIDTH, to_pixel

GAP = 9.0  # pixels between names, and from names to marks and ornaments
CROSSING_GAP = 12.0  # pixels from names to the middle of a crossing
FRAME_GAP = 18  # pixels from names to the frame
STEP = 12  # pixels between tries
FIRST = ("range", "ocean", "sea", "region", "land")  # the great names choose before the rest
GRAIN = np.linspace(0, 1, 5)


class Room:
    """What a name or sign meets on the sheet, on the land's grid."""

    def __init__(self, country, ornament_boxes, figures):
        land = country.land
        self.shape = land.shape
        self.land = land > 0
        self.shore = np.abs(land) < 7
        inside = ndimage.distance_transform_edt(self.land) - ndimage.distance_transform_edt(
            ~self.land
        )
        self.inland = inside * GRID
        water = Image.new("L", self.shape[::-1])
        pen = ImageDraw.Draw(water)
        for river in country.rivers:
            pen.line([(x / GRID, y / GRID) for x, y in river.points], fill=1, width=5)
        self.rivers = np.array(water, bool) | (country.lakes > -6) & self.land
        self.steep = country.heights > 0.30
        self.busy = np.zeros(self.shape, bool)
        y, x = np.mgrid[0 : self.shape[0], 0 : self.shape[1]]
        self.outside = ~graticule.valid((x + 0.5) * GRID, (y + 0.5) * GRID)
        self.outside = ndimage.binary_dilation(
            self.outside, iterations=FRAME_GAP // GRID, border_value=1
        )
        for _, _, px, py in graticule.crossings():
            self._disc(px, py, CROSSING_GAP + 4)
        for place in PLACES:
            self._disc(*place.pixel, marks.RIM + 7)
        for box in ornament_boxes:
            self.block(box[None], GAP + 4)
        for label in figures:
            self.block(label.boxes(), GAP)

    def _disc(self, x, y, radius):
        box = np.s_[
            max(int((y - radius) / GRID), 0) : int((y + radius) / GRID) + 2,
            max(int((x - radius) / GRID), 0) : int((x + radius) / GRID) + 2,
        ]
        rows, columns = np.mgrid[box]
        self.busy[box] |= np.hypot((columns + 0.5) * GRID - x, (rows + 0.5) * GRID - y) < radius

    def block(self, boxes, gap):
        """Takes the room of letter boxes, widened by a gap."""
        picture = Image.new("L", self.shape[::-1])
        pen = ImageDraw.Draw(picture)
        for box in boxes:
            pen.polygon([tuple(p) for p in widened(box, gap) / GRID], fill=1)
        self.busy |= np.array(picture, bool)


def widened(box, gap):
    u, v = box[1] - box[0], box[3] - box[0]
    u, v = u / max(np.hypot(*u), 1e-9) * gap, v / max(np.hypot(*v), 1e-9) * gap
    return box + np.array([-u - v, u - v, u + v, -u + v])


def _samples(label):
    """Points all over the letters' boxes."""
    boxes = label.boxes()
    u, v = boxes[:, 1] - boxes[:, 0], boxes[:, 3] - boxes[:, 0]
    a, b = np.meshgrid(GRAIN, GRAIN)
    return (
        boxes[:, 0, None]
        + u[:, None] * a.ravel()[None, :, None]
        + v[:, None] * b.ravel()[None, :, None]
    ).reshape(-1, 2)


def _cost(room, points, under):
    """How badly a name would stand on these points; None where it may not."""
    column, row = (points / GRID).astype(int).T
    if (
        column.min() < 0
        or row.min() < 0
        or column.max() >= room.shape[1]
        or row.max() >= room.shape[0]
    ):
        return None
    if room.busy[row, column].any() or room.outside[row, column].any():
        return None
    cost = 420 * room.shore[row, column].mean() + 200 * room.rivers[row, column].mean()
    if under == "sea":
        if room.inland[row, column].max() > -7:
            return None
    elif under == "foot":
        cost += 900 * (~room.land[row, column]).mean() + 700 * room.steep[row, column].mean()
    elif under == "land":
        cost += 900 * (~room.land[row, column]).mean()
    return cost


def _settle(room, label, reach, under):
    points, best = _samples(label), None
    offsets = np.arange(-reach // STEP, reach // STEP + 1) * STEP
    for dy in offsets:
        for dx in offsets:
            far = float(np.hypot(dx, dy))
            if far > reach or best and 0.5 * far >= best[0]:
                continue
            cost = _cost(room, points + (dx, dy), under)
            if cost is not None and (best is None or cost + 0.5 * far < best[0]):
                best = (cost + 0.5 * far, dx, dy)
    return best and label.moved(best[1], best[2])


def _beside(room, place):
    """A place's name, beside its mark."""
    style, (x, y) = STYLES["place"], place.pixel
    label = lettering.on_arc(place.name, "place", style, 0, 0)
    boxes = label.boxes()
    low, high = boxes.min((0, 1)), boxes.max((0, 1))
    best = None
    away = marks.RIM + 10
    middle = y - (low[1] + high[1]) / 2
    tries = [(x + away - low[0], middle + k, abs(k) * 0.8) for k in range(-40, 41, 8)]
    tries += [(x - away - high[0], middle + k, 12 + abs(k) * 0.8) for k in range(-40, 41, 8)]
    centre = x - (low[0] + high[0]) / 2
    for k in range(-120, 121, 10):
        tries.append((centre + k, y - away - high[1], 14 + 0.3 * abs(k)))
        tries.append((centre + k, y + away - low[1], 16 + 0.3 * abs(k)))
    points = _samples(label)
    for px, py, price in tries:
        cost = _cost(room, points + (px, py), "any")
        if cost is not None and (best is None or cost + price < best[0]):
            best = (cost + price, px, py)
    assert best, f"no room for {place.name}"
    return label.moved(best[1], best[2])


def _along_river(room, name, lon, lat, rivers):
    """A river's name above or below a quiet stretch near a given point."""
    at, best = np.array(to_pixel(lon, lat)), None
    style = STYLES["river"]
    for river in rivers:
        if np.hypot(*(river.points - at).T).min() > 100:
            continue
        for turned in (river.points, river.points[::-1]):
            smooth = lines.smooth_curve(turned, 6, 34)
            side = lines.directions(smooth)
            for off in (-13.0, 36.0):
                path = smooth + np.stack([-side[:, 1], side[:, 0]], axis=1) * off
                length = np.hypot(*np.diff(path, axis=0).T).sum()
                for start in np.arange(12, length - 40, 14):
                    label = lettering.along_line(name, "river", style, path, start)
                    if label is None:
                        break
                    angles = np.unwrap([t.angle for t in label.letters])
                    middle = angles.mean()
                    far = np.hypot(*(label.boxes().mean((0, 1)) - at))
                    if abs(middle) > 1.45 or far > 330:
                        continue
                    cost = _cost(room, _samples(label), "any")
                    if cost is None:
                        continue
                    cost += (
                        60 * np.ptp(angles)
                        + 0.5 * far
                        + 26 * abs(middle)
                        + (4 if off > 0 else 0)
                        - 0.01 * min(river.water, 4000) ** 0.9
                    )
                    if best is None or cost < best[0]:
                        best = (cost, label)
    return best and best[1]


def arrange(room, rivers):
    """All names, none in another's way; takes their room."""
    labels, homeless = [], []

    def take(label):
        room.block(label.boxes(), GAP)
        labels.append(label)

    for place in PLACES:
        take(_beside(room, place))
    for name in sorted(NAMES, key=lambda n: n[1] not in FIRST):
        text, kind, lon, lat, turn, bend, reach = name
        x, y = to_pixel(lon, lat)
        label = lettering.on_arc(text, kind, STYLES[kind], float(x), float(y), turn, bend)
        label = _settle(room, label, reach, UNDER[kind])
        if label is None:
            homeless.append(text)
        else:
            take(label)
    for name, lon, lat in RIVERS:
        label = _along_river(room, name, lon, lat, rivers)
        if label is None:
            homeless.append(name)
        else:
            take(label)
    assert not homeless, "no room for " + ", ".join(homeless)
    return labels


def verify(names, figures, ornament_boxes):
    """Asserts by the letters' own boxes that nothing stands in anything's way; counts the tests."""
    labels = names + figures
    boxes = [label.boxes() for label in labels]
    points = np.array([(x, y) for _, _, x, y in graticule.crossings()])
    places = np.array([place.pixel for place in PLACES])
    for k, label in enumerate(labels):
        for other in range(k):
            assert not lettering.touching(
                boxes[k], boxes[other], 2.0
            ), f"{label.text} touches {labels[other].text}"
        for box in ornament_boxes if k < len(names) else ():
            assert not lettering.touching(
                boxes[k], box[None], 2.0
            ), f"{label.text} touches an ornament"
        assert (
            lettering.nearest_to(boxes[k], points) >= graticule.PEARL + 2
        ), f"{label.text} is on a crossing"
        assert lettering.nearest_to(boxes[k], places) >= marks.RIM + 1, f"{label.text} is on a mark"
        low, high = boxes[k].min((0, 1)), boxes[k].max((0, 1))
        assert (
            low.min() >= 2 and (high <= (WIDTH - 2, HEIGHT - 2)).all()
        ), f"{label.text} leaves the sheet"
    letters = sum(len(b) for b in boxes)
    for box in ornament_boxes:
        assert (
            lettering.nearest_to(box[None], points) >= CROSSING_GAP
        ), "an ornament is on a crossing"
    pairs = len(labels) * (len(labels) - 1) // 2
    print(
        f"  {len(names)} names and {len(figures)} figures, {letters} letters: none touches another"
        f" ({pairs} pairs), {len(points)} crossings and {len(places)} marks clear"
    )
