"""Finds every name its room: near where it belongs, off whatever must stay visible."""

from dataclasses import replace
from itertools import product

import numpy as np
from PIL import Image, ImageDraw
from scipy import ndimage

from . import graticule, lettering, lines, marks
from .land import GRID
from .names import NAMES, RIVERS, STYLES, UNDER
from .world import HEIGHT, PLACES, WIDTH, to_pixel

GAP = 9.0  # pixels between names, and from names to marks and ornaments
CROSSING_GAP = 12.0  # pixels from names to the middle of a crossing
FIGURE_GAP = 34.0  # pixels from names to the figures along the frame
RIVER_GAP = 4.0  # pixels from names to the banks of rivers
SHORE_GAP = 7.0  # pixels from names to the coast
OFFING = 16.0  # pixels from the names of waters to the coast
FRAME_GAP = 18  # pixels from names to the frame
STEP = 8  # pixels between tries
NARROW = ("Wendfirth", "Vossen Haven")  # no other water will do for these
BROOK, SHORTEST, NEAR = 1900, 60, 12  # cells of mean rain; pixels
FIRST = ("range", "ocean", "sea", "region", "land")  # the great names choose before the rest
GRAIN = np.linspace(0, 1, 7)


class Room:
    """What a name or sign meets on the sheet, on the land's grid."""

    def __init__(self, country, ornament_boxes, figures):
        land = country.land
        self.shape = land.shape
        self.land = land > 0
        self.shore = np.abs(land) < SHORE_GAP
        inside = ndimage.distance_transform_edt(self.land) - ndimage.distance_transform_edt(
            ~self.land
        )
        self.inland = inside * GRID
        lakes = (country.lakes > -RIVER_GAP) & self.land
        named = [_nearest(country.rivers, lon, lat) for _, lon, lat in RIVERS]
        great = [r for r in country.rivers if r.water >= BROOK or any(r is n for n in named)]
        self.rivers = lakes | self.drawn(great)
        self.brooks = self.drawn(country.rivers) & ~self.rivers
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
            self._disc(*place.pixel, marks.ROOM)
        for box in ornament_boxes:
            self.block(box[None], GAP + 4)
        for label in figures:
            self.block(label.boxes(), FIGURE_GAP)

    def drawn(self, rivers):
        """The cells that are too near to rivers for a letter."""
        water = Image.new("L", self.shape[::-1])
        pen = ImageDraw.Draw(water)
        for river in rivers:
            wide = 2 * RIVER_GAP + float(river.widths.max())
            at = [(x / GRID, y / GRID) for x, y in river.points]
            pen.line(at, fill=1, width=round(wide / GRID))
        return np.array(water, bool)

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


def samples(label):
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
    if room.rivers[row, column].any():
        return None
    cost = 420 * room.shore[row, column].mean() + 200 * room.brooks[row, column].mean()
    if under == "shoreless" and room.shore[row, column].any():
        return None
    if under == "sea":
        if room.inland[row, column].max() > -OFFING:
            return None
    elif under == "foot":
        if room.inland[row, column].min() < SHORE_GAP:
            return None
        cost += 700 * room.steep[row, column].mean()
    elif under == "land":
        if room.shore[row, column].any():
            return None
        cost += 900 * (~room.land[row, column]).mean()
    return cost


def _settle(room, label, reach, under):
    points, best = samples(label), None
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
    middle, centre, tries = y - (low[1] + high[1]) / 2, x - (low[0] + high[0]) / 2, []
    for away in np.arange(marks.ROOM + 3, marks.ROOM + 30, 6):
        for k in range(-64, 65, 8):
            price = 0.5 * (away - marks.ROOM) + 0.8 * abs(k)
            tries.append((x + away - low[0], middle + k, price))
            tries.append((x - away - high[0], middle + k, 12 + price))
        for k in range(-160, 161, 10):
            price = 0.5 * (away - marks.ROOM) + 0.3 * abs(k)
            tries.append((centre + k, y - away - high[1], 14 + price))
            tries.append((centre + k, y + away - low[1], 16 + price))
    points = samples(label)
    for px, py, price in tries:
        cost = _cost(room, points + (px, py), "shoreless")
        if cost is not None and (best is None or cost + price < best[0]):
            best = (cost + price, px, py)
    assert best, f"no room for {place.name}"
    return label.moved(best[1], best[2])


def _longer(path, by):
    """A line that goes on straight at both its ends: a short river may have a long name."""
    first, last = path[0] - path[2], path[-1] - path[-3]
    first, last = first / np.hypot(*first), last / np.hypot(*last)
    steps = np.arange(6, by + 1, 6)[:, None]
    return np.concatenate([path[0] + steps[::-1] * first, path, path[-1] + steps * last])


def _nearest(rivers, lon, lat):
    at = np.array(to_pixel(lon, lat))
    return min(rivers, key=lambda river: np.hypot(*(river.points - at).T).min())


def _along_river(room, name, lon, lat, river):
    """A river's name above or below a quiet stretch near a given point."""
    at, best = np.array(to_pixel(lon, lat)), None
    style = STYLES["river"]
    for turned, sigma in product((river.points, river.points[::-1]), (34, 80)):
        smooth = _longer(lines.smooth_curve(turned, 6, sigma), 60)
        side = lines.directions(smooth)
        for off in (-17.0, -24.0, -32.0, -40.0, 46.0, 54.0, 62.0):
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
                cost = _cost(room, samples(label), "shoreless")
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


def _give_way(rivers, labels, staying):
    """Brooks that come out from under a name rise below it; what is left of one, if much is."""
    boxes = np.concatenate([label.boxes() for label in labels])
    kept, gone = [], np.empty((0, 2))
    for river in sorted(rivers, key=lambda r: -r.water):
        dangling = len(gone) and np.hypot(*(gone - river.points[-1]).T).min() < NEAR
        if dangling:
            gone = np.concatenate([gone, river.points])
            continue
        if river.water < BROOK and not any(river is other for other in staying):
            hidden = [k for k, p in enumerate(river.points) if _is_near(boxes, p)]
            if hidden:
                cut = hidden[-1] + 1
                gone = np.concatenate([gone, river.points[:cut]])
                left = np.hypot(*np.diff(river.points[cut:], axis=0).T).sum()
                if left < SHORTEST:
                    continue
                river = replace(river, points=river.points[cut:], widths=river.widths[cut:])
        kept.append(river)
    return kept


def _is_near(boxes, point):
    near = boxes[np.hypot(*(boxes.mean(axis=1) - point).T) < 120]
    return len(near) and lettering.nearest_to(near, point[None]) < RIVER_GAP + 3


def arrange(room, rivers):
    """All names, none in another's way, and the rivers that are left between them; takes their
    room."""
    labels, homeless = [], []

    def take(label):
        room.block(label.boxes(), GAP)
        labels.append(label)

    def find(name):
        text, kind, lon, lat, turn, bend, reach = name
        x, y = to_pixel(lon, lat)
        label = lettering.on_arc(text, kind, STYLES[kind], float(x), float(y), turn, bend)
        label = _settle(room, label, reach, UNDER[kind])
        if label is None:
            homeless.append(text)
        else:
            take(label)

    for name in NAMES:
        if name[0] in NARROW:
            find(name)
    for place in PLACES:
        take(_beside(room, place))
    for name in sorted(NAMES, key=lambda n: n[1] not in FIRST):
        if name[0] not in NARROW:
            find(name)
    named = [_nearest(rivers, lon, lat) for _, lon, lat in RIVERS]
    for river, (name, lon, lat) in zip(named, RIVERS):
        label = _along_river(room, name, lon, lat, river)
        if label is None:
            homeless.append(name)
        else:
            take(label)
    assert not homeless, "no room for " + ", ".join(homeless)
    return labels, _give_way(rivers, labels, named)


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
        assert (
            lettering.nearest_to(boxes[k], places) >= marks.ROOM - 1
        ), f"{label.text} is on a mark"
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
