#!/usr/bin/python3
"""The map of Tamsorel: draws the picture the user clicks on, and measures it.

    /usr/bin/python3 tools/make_map.py           write the picture and its note
    /usr/bin/python3 tools/make_map.py --check   measure the picture, exit 1 on a fault
    /usr/bin/python3 tools/make_map.py --outline web/page/outline.mjs   the web page's coasts alone

Written are, beside the program's other resources,

    tamsorel.jpg    the map, 4316 x 3266 pixels
    tamsorel.md     how it was made, and every name on it

Needed are Debian's python3-numpy, python3-scipy, python3-pil and python3-cairo; the
typeface lies beside the tool.  A run takes about a minute and 2.5 gigabytes, and yields
the same bytes every time; measuring takes half the time, since the names are set anew, and
less than a gigabyte.
How the map is made is told in the package `map_of_tamsorel`.
"""

import argparse
import sys
from pathlib import Path

RESOURCES = Path(__file__).resolve().parent.parent / "resources"


def main():
    parser = argparse.ArgumentParser(description="Draws the map of Tamsorel.")
    parser.add_argument(
        "--check", action="store_true", help="measure the picture as it stands; exit 1 on a fault"
    )
    parser.add_argument("--into", type=Path, default=RESOURCES, help="the folder of the files")
    parser.add_argument("--outline", type=Path, help="write only the coasts, into this file")
    options = parser.parse_args()
    if options.check:
        from map_of_tamsorel import check

        sys.exit(0 if check.run(options.into / "tamsorel.jpg") else 1)
    if options.outline:
        from map_of_tamsorel import outline

        outline.write(options.outline)
        return
    from map_of_tamsorel import note, sheet

    names = sheet.make(options.into / "tamsorel.jpg")
    note.write(options.into / "tamsorel.md", names)


if __name__ == "__main__":
    main()
