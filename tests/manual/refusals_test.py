"""What the command says when it refuses something stands in the manual as it is said, word for word: each of
many commands that go wrong is run, and every line of its answer looked for among the rows of messages.html.

    refusals_test.py MANUAL_FOLDER VEYRUNA PROJECT"""

import html
import re
import shlex
import sys
import tempfile
import unittest
from pathlib import Path

from program import Program

MANUAL, VEYRUNA = Path(sys.argv[1]), sys.argv[2]

FILES = {
    "empty.csv": "",
    "twice.csv": "name,date,date\n",
    "short.csv": "name,hour\nA,1\n",
    "open.csv": 'name,date,place\n"A,720-01-01,Ebb\n',
    "wrong.csv": "name,date,place\nA,720-01-01,Ebb,x\n,720-01-01,Ebb\nB,720-13-01,Ebb\n"
    "C,720-01-01,95N 3E\nD,720-01-01,Nowhere\n",
    "local.csv": 'name,date,place,local\nA,720-01-01,Ebb,perhaps\nB "x" y,720-01-01,Ebb,\n',
    "none.txt": "# nothing\n",
    "group.txt": "any of:\nmoon full\n",
    "left.txt": "  moon full\nnight\n",
    "right.txt": "moon full\n  night\n",
    "between.txt": "any of:\n    moon full\n  night\n",
}

TYPED = """
--year 720
xyz
positons
help xyz
help positons
moment extra
moment --nope
moment --yaer 3
hourly --bw
moment --local=3
moment --year
moment --year --local
moment --month 13
moment --hour 25
moment --day 31
moment --lat 95
moment --long 200
moment --base-time x
moment --year 5000000
moment --location Nowhere
--lat 3 --location Ebb moment
--base-time 3 --year 720 moment
ephemeris --rows 3
ephemeris --rows 3 --step 0/0
ephemeris --rows 3 --step 900000000
ephemeris --rows 100000 --step 1 -o x.pdf
hourly -o x.png
hourly --format png
hourly --format pdf -o x.txt
hourly --size 500
horoscope -o /proc/x/y.svg
all
all --out folder --format svg,xyz
all --out /proc/x
schema nope
schema events --format csv
schema --format json
page -o x.pdf
page --format pdf -o x
page --location all -o x.html
page --from 720-01-01 --for '1 day' --player -o x.html
calendar
calendar --format pdf
events
events --from 720-01-01
events --from x --for '1 day'
events --from 720-01-01 --for x
events --from 720-01-01 --to 720-02-01 --for '3 days'
events --from 720-02-01 --to 720-01-01
events --from 720-01-01 --for '1 day' --local
events --from 720-01-01 --for '1 day' --kind nope
events --from 720-01-01 --for '1 day' --kind rise
events --from 720-01-01 --for '1 day' --format pdf
events --from 720-01-01 --for '1 day' --visibility gm
events --from 720-01-01 --for '1 day' --format calendarium
events --from 720-01-01 --for '1 day' --format calendarium --out n --visibility x
events --from 720-01-01 --for '1 day' --format calendarium --out n --visibility player
events --from 720-01-01 --for '1 day' --format seasons-stars --out n
events --from @-100 --for '1 day' --format seasons-stars -o x.json
batch wrong.csv
batch empty.csv --out d
batch twice.csv --out d
batch short.csv --out d
batch open.csv --out d
batch wrong.csv --out d
batch local.csv --out d
batch missing.csv --out d
batch wrong.csv --out /proc/x
batch wrong.csv --out d --year 720
batch wrong.csv --out d --documents nope
batch wrong.csv --out d --documents hourly --format png
""".strip().splitlines()

CONDITIONS = """
''
moon full
'moon'
'night'
'moon fulll'
'moon full night'
'hour 3 to 3'
'hour 25 to 3'
'month 13'
'day 31'
'moon conjunct zzz'
'moon conjunct bralo within 999'
'moon in zzz'
'bralo natal zzz'
'any of moon'
'all of them'
'any of (moon full, night)'
--location Ebb 'moon above 99'
--location all 'moon full'
-f missing.txt
-f none.txt
-f group.txt
-f left.txt
-f right.txt
-f between.txt
'power superior' 'keep twisted' 'zerathe exceptional' 'month 3'
""".strip().splitlines()

DEEP = "'" + "not " * 70 + "moon full'"
SEARCH = "search --from 720-01-01 --for '1 day' "


def patterns():
    """A pattern for each message of the page, in which … stands for anything."""
    page = (MANUAL / "messages.html").read_text(encoding="utf-8")
    for cell in re.findall(r'<tr><th scope="row">(.*?)</th>', page):
        parts = html.unescape(re.sub(r"<[^>]*>", "", cell)).split("…")
        if sum(len(part.strip()) for part in parts) > 8:
            yield re.compile(".*".join(re.escape(part.strip()) for part in parts))


class RefusalsTest(unittest.TestCase):
    def test_each_stands_in_the_manual(self):
        known = list(patterns())
        with tempfile.TemporaryDirectory() as home:
            program = Program(VEYRUNA, home)
            for name, content in FILES.items():
                (Path(home) / name).write_text(content, encoding="utf-8")
            for command in ["", *TYPED, *(SEARCH + words for words in [*CONDITIONS, DEEP])]:
                said = [
                    line for line in program.lines(*shlex.split(command)) if "veyruna: " in line
                ]
                self.assertTrue(said, f"nothing is refused of: {command}")
                for line in said:
                    with self.subTest(command):
                        is_there = any(pattern.search(line) for pattern in known)
                        self.assertTrue(is_there, f"messages.html does not have: {line}")

    def test_what_is_not_there_is_told(self):
        self.assertFalse(any(one.search("veyruna: the sky has fallen") for one in patterns()))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
