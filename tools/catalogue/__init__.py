"""The sky of Veyruna, drawn as it appears.

Both charts turn every numbered star back by 18 degrees along the ecliptic, but
leave names and sign markers where they are.  Everything here is therefore laid
out as it is SEEN, after the turn, as unit vectors in the ecliptic frame; only on
writing is a star turned forward again and carried over to equatorial coordinates.

Nothing depends on the clock or on chance: the only random numbers come from a
generator with a fixed seed, so the same sky is drawn every time.

    world       what is given: the tilt, the signs, the colours
    sphere      vectors, frames and arcs          plane    boxes and lines on paper
    wheel       how the wheel shows the sky       lettering  how much room a name takes
    drawings    the figures as drawn by hand      figures  the same laid on the sphere
    names       where every name stands           band     the dense band of stars
    background  the stars between the figures  wanderers  sun, moon and planets
    note        the note that explains the files  files    the texts of all files
    checks      measures the tables of a catalogue
    covered     what is cut or covered on a chart the program has drawn
"""
