"""The pen: strokes in ink."""

from .paint import INK


def ink(c, width, alpha=1.0, colour=INK):
    """Strokes the path."""
    c.set_source_rgba(*colour, alpha)
    c.set_line_width(width)
    c.stroke()


def line(c, points):
    """Adds a broken line to the path."""
    c.move_to(*points[0])
    for point in points[1:]:
        c.line_to(*point)


def loop(c, points):
    """Adds a closed line to the path."""
    line(c, points)
    c.close_path()
