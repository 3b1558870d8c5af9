#!/usr/bin/env python3
"""unreached.py COVERAGE.json: lists, file by file, the lines that no test reached, with their text,
and the branches that were never taken."""
import json
import sys
from pathlib import Path


def main():
    data = json.loads(Path(sys.argv[1]).read_text(encoding="utf-8"))
    for file in sorted(data["files"], key=lambda each: each["file"]):
        text = Path(file["file"]).read_text(encoding="utf-8").splitlines()
        said = []
        for line in file["lines"]:
            if line.get("gcovr/noncode"):
                continue
            number = line["line_number"]
            missed = sum(1 for branch in line["branches"] if branch["count"] == 0)
            what = "line" if line["count"] == 0 else f"{missed} of {len(line['branches'])} branches"
            if line["count"] == 0 or missed:
                said.append(f"  {number:4} {what:>15}  {text[number - 1].strip()}")
        if said:
            print(file["file"])
            print("\n".join(said))


if __name__ == "__main__":
    main()
