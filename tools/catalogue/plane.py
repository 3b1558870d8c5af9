"""Geometry on paper: points (x, y), straight lines and upright boxes (x0, y0, x1, y1)."""

import math


def box_gap(a, b):
    """Gap of two boxes; negative when they overlap."""
    dx = max(b[0] - a[2], a[0] - b[2])
    dy = max(b[1] - a[3], a[1] - b[3])
    return math.hypot(max(dx, 0), max(dy, 0)) if dx > 0 or dy > 0 else max(dx, dy)


def box_to_point(box, p):
    """Distance of a point from a box, 0 inside it."""
    return math.hypot(max(box[0] - p[0], 0, p[0] - box[2]), max(box[1] - p[1], 0, p[1] - box[3]))


def between(a, b, t):
    """The point of the line a-b at t, which runs from 0 at a to 1 at b."""
    return a[0] + t * (b[0] - a[0]), a[1] + t * (b[1] - a[1])


def meeting_point(a, b, c, d):
    """Where the lines a-b and c-d cross, None if they do not."""

    def side(p, q, r):
        return (q[0] - p[0]) * (r[1] - p[1]) - (q[1] - p[1]) * (r[0] - p[0])

    a_side, b_side = side(c, d, a), side(c, d, b)
    if (side(a, b, c) > 0) == (side(a, b, d) > 0) or (a_side > 0) == (b_side > 0):
        return None
    return between(a, b, a_side / (a_side - b_side))


def box_to_line(box, a, b):
    """Distance of a box from the line a-b, 0 where they meet."""
    x0, y0, x1, y1 = box
    corners = [(x0, y0), (x1, y0), (x1, y1), (x0, y1)]
    if any(meeting_point(a, b, corners[i], corners[i - 1]) for i in range(4)):
        return 0.0
    ends = (box_to_point(box, a), box_to_point(box, b))
    return min(*ends, *(point_to_line(c, a, b) for c in corners))


def point_to_line(p, a, b):
    """Distance of a point from the line a-b, which ends at a and b."""
    dx, dy = b[0] - a[0], b[1] - a[1]
    n = dx * dx + dy * dy
    t = 0 if n == 0 else max(0.0, min(1.0, ((p[0] - a[0]) * dx + (p[1] - a[1]) * dy) / n))
    return math.hypot(p[0] - a[0] - t * dx, p[1] - a[1] - t * dy)
