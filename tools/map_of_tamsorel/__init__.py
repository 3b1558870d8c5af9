"""The map of Tamsorel, drawn as a sheet of an atlas.

Nothing depends on the clock or on chance: all random numbers come from generators with
fixed seeds, so the same sheet is drawn every time.

    world      what is given: the sheet, the projection, the places
    drawings   the lands, ranges, valleys and lakes as drawn by hand
    noise      smooth random fields            lines      lines on paper
    land       coasts                          relief     heights
    flow       running water                   rivers     the rivers as lines
    climate    rain and warmth                 contours   level lines of a field
    country    all of that together            paint      paper, colours and light
    washes     the sheet without ink           pen        strokes in ink
    waters     waves, rivers, lakes, coast     peaks      mountains and hills
    growth     trees, dunes, sedge, grass      plants     where which of them stand
    scatter    sets them out                   vessels    ships and a serpent
    lettering  letters and their boxes         names      what is named, and where
    layout     finds every name its room       marks      the marks of the places
    graticule  net, crossings and frame        ornaments  cartouche, scale, rose, degrees
    sheet      the whole sheet, layer by layer
    note       the note beside the picture     check      measures the finished picture
    measures   what a reader meets, in figures
"""
