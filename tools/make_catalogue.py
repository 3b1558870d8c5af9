#!/usr/bin/env python3
"""The fixed stars of Veyruna: draws the catalogue up and measures it.

    python3 tools/make_catalogue.py           write the catalogue files
    python3 tools/make_catalogue.py --check   measure the files, exit 1 on a fault

Written are, beside the program's other resources,

    star_catalogue.csv       name,frame,color,phi,theta,magnitude (radians)
    constellation_lines.csv  from,to
    star_catalogue.md        where every figure stands and how the sky was made

How the sky is made is told in the package `catalogue` beside this file.
"""

import argparse
import sys

from catalogue import files


def main():
    parser = argparse.ArgumentParser(description="Draws up the star catalogue of Veyruna.")
    parser.add_argument(
        "--check", action="store_true", help="measure the files as they stand; exit 1 on a fault"
    )
    if parser.parse_args().check:
        sys.exit(1 if files.check() else 0)
    files.write()


if __name__ == "__main__":
    main()
