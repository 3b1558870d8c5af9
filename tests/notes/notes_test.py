"""What other people's tools are given is read back by other people's readers, and stands on the days of the
text.

    notes_test.py VEYRUNA"""

import collections
import copy
import json
import math
import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import yaml
from jsonschema import Draft7Validator

VEYRUNA = os.path.abspath(sys.argv.pop(1))
SCHEMA = Path(__file__).with_name("seasons_stars_schema.json")
MONTHS = "Brenwic Tolma Dovri Ambro Fiskel Ulvenhar Cendo Virela Grend Oskam Rulig Thaven".split()

# Names that a person may well save, and what YAML, files and pages make of them.
NASTY = [
    'The "Ash": by night # not a comment',
    "Two\nlines\r\n---\nand a tab\t",
    "- item",
    "C:\\temp\\%s {a} [b] *c* &d !e |f >g `h` @i",
    "Côte d'Ebb ☾ 𝄞",
    "../../etc",
    "CON",
    "w" * 4000,
    "\u0085\u2028\u0007",
    "null",
]

TWO_YEARS = "--from 720-01-01 --for 2 years"
SEVEN_YEARS = "--from 720-01-01 --for 7 years"
WITH_PAIRS = "--kind eclipse,moon,conjunction:all,opposition:all,sign,station,season"
FORTY_DAYS_AT_EBB = "--from 720-06-01 --for 40 days --location Ebb"
THREE_DAYS_EVERYWHERE = "--from 720-06-11 --for 3 days --location all"


class Event:
    """A line of the text output."""

    def __init__(self, line):
        found = re.match(r"(\d+-\d\d-\d\d) (\d\d:\d\d) OST  (.*)$", line)
        self.day, self.clock, self.rest = found.groups()

    @property
    def key(self):
        return self.day, self.clock


class Home:
    """A person's home with saved places of every sort."""

    def __init__(self, folder):
        self.folder = Path(folder)
        data = self.folder / "data/VeyrunaAstro"
        data.mkdir(parents=True)
        places = [("Ebb", 0.25, 0.125)]
        places += [(name, 0.1 * i, -0.2 * i) for i, name in enumerate(NASTY, 1)]
        entries = [
            {
                "id": f"00000000-0000-4000-8000-{i:012x}",
                "name": name,
                "latitude": latitude,
                "longitude": longitude,
            }
            for i, (name, latitude, longitude) in enumerate(places, 1)
        ]
        (data / "locations.json").write_text(json.dumps(entries), encoding="utf-8")

    def run(self, command, *further):
        environment = {
            "HOME": str(self.folder),
            "XDG_DATA_HOME": f"{self.folder}/data",
            "XDG_CONFIG_HOME": f"{self.folder}/config",
            "PATH": os.defpath,
        }
        return subprocess.run(
            [VEYRUNA, *command.split(), *further],
            capture_output=True,
            check=False,
            cwd=self.folder,
            env=environment,
        )

    def written(self, command, *further):
        result = self.run(command, *further)
        if result.returncode != 0:
            raise AssertionError(f"{command}: {result.stderr.decode()}")
        return result.stdout.decode("utf-8")

    def events(self, arguments):
        return [Event(line) for line in self.written(f"events {arguments}").splitlines()[1:]]

    def records(self, arguments):
        return json.loads(self.written(f"events {arguments} --format json"))["events"]

    def notes(self, arguments, folder, *further):
        """The heads of the notes in a folder, by their ids, after an export into it."""
        self.written(f"events {arguments} --format calendarium --out {folder}", *further)
        heads = {}
        for path in (self.folder / folder).iterdir():
            text = path.read_text(encoding="utf-8")
            before, head, body = text.split("---\n", 2)
            assert before == "" and body.strip(), text
            read = yaml.safe_load(head)
            assert path.name == read["veyruna-id"] + ".md", path
            heads[read["veyruna-id"]] = read
        return heads

    def calendar(self, arguments, *further):
        text = self.written(f"events {arguments} --format seasons-stars", *further)
        calendar = json.loads(text)
        Draft7Validator(json.loads(SCHEMA.read_text(encoding="utf-8"))).validate(calendar)
        return calendar


def label_of(description):
    return tuple(description.split(" OST: ")[0].split(" "))


class NotesTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        # Each note is brought to the disk by itself; where memory serves as one, that takes no time.
        memory = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
        folder = tempfile.TemporaryDirectory(dir=memory)
        cls.addClassCleanup(folder.cleanup)
        cls.home = Home(folder.name)

    def assert_same(self, one, other):
        self.assertEqual(collections.Counter(one), collections.Counter(other))

    def test_calendarium_has_every_event_on_its_day(self):
        events = self.home.events(f"{TWO_YEARS} {WITH_PAIRS}")
        self.assertGreater(len(events), 500)
        notes = self.home.notes(f"{TWO_YEARS} {WITH_PAIRS}", "two")
        self.assertEqual(len(notes), len(events))
        self.assert_same(
            [(head["fc-date"], *label_of(head["fc-description"])) for head in notes.values()],
            [(event.day, event.day, event.clock) for event in events],
        )
        for head in notes.values():
            self.assertEqual(head["fc-date"], head["fc-end"])
            self.assertEqual(head["fc-calendar"], "Veyruna")
            for key, value in head.items():
                self.assertIsInstance(value, str, key)
                self.assertTrue(value.strip(), key)

    def test_calendarium_says_what_the_text_says(self):
        arguments = "--from 720-01-01 --for 3 years --kind conjunction,eclipse,station"
        said = [event.rest.split("  ", 1)[1].strip() for event in self.home.events(arguments)]
        heads = self.home.notes(arguments, "said").values()
        self.assert_same(
            [head["fc-description"].split(": ", 1)[1] for head in heads],
            [f"{words}." for words in said],
        )

    def test_seasons_and_stars_has_every_event_on_its_day(self):
        events = self.home.events(f"{SEVEN_YEARS} {WITH_PAIRS}")
        calendar = self.home.calendar(f"{SEVEN_YEARS} {WITH_PAIRS}")
        self.assertEqual(len(calendar["events"]), len(events))
        for event, text in zip(calendar["events"], events):
            day = event["recurrence"]
            date = f'{event["startYear"]:03}-{day["month"]:02}-{day["day"]:02}'
            self.assertEqual((date, event["startTime"][:5]), text.key)
            self.assertEqual(event["startYear"], event["endYear"])
            self.assertEqual(event["visibility"], "gm-only")
        # To the second, which the text leaves out.
        for event, record in zip(
            calendar["events"], self.home.records(f"{SEVEN_YEARS} {WITH_PAIRS}")
        ):
            seconds = math.floor((record["base_time_days"] + 0.5) * 86400 + 0.5) % 86400
            clock = f"{seconds // 3600:02}:{seconds // 60 % 60:02}:{seconds % 60:02}"
            self.assertEqual(event["startTime"], clock)
        ids = [event["id"] for event in calendar["events"]]
        self.assertEqual(len(ids), len(set(ids)))

    def test_both_tools_have_the_same_ids(self):
        arguments = FORTY_DAYS_AT_EBB
        notes = self.home.notes(arguments, "ids")
        self.assertGreater(len(notes), 500)
        calendar = self.home.calendar(arguments)
        self.assert_same([event["id"] for event in calendar["events"]], list(notes))

    def test_a_second_import_adds_nothing(self):
        first = self.home.notes("--from 720-01-01 --for 9 days --location Ebb", "twice")
        path = self.home.folder / "twice" / f"{next(iter(first))}.md"
        written = path.read_text(encoding="utf-8") + "What we did that evening.\n"
        path.write_text(written, encoding="utf-8")
        again = self.home.run(
            "events --from 720-01-01 --for 9 days --location Ebb --format calendarium --out twice"
        )
        self.assertEqual((again.returncode, again.stdout), (0, b""))
        self.assertIn(f"{len(first)} notes were there already", again.stderr.decode())
        self.assertEqual(path.read_text(encoding="utf-8"), written)

    def test_a_moon_that_rises_twice_in_an_evening_has_two_notes(self):
        rises = "--from 22-12-29 --for 3 days --kind rise --lat 89.4N --long 0"
        command = f"events {rises} --format calendarium --out pole"
        first = self.home.run(command)
        self.assertEqual((first.returncode, first.stderr), (0, b""))
        self.assertEqual(len(self.home.notes(rises, "pole")), len(self.home.events(rises)))

    def test_one_note_that_is_there_already_is_one_note(self):
        command = (
            "events --from 720-01-30 --for 1 days --kind eclipse --format calendarium --out one"
        )
        self.home.run(command)
        again = self.home.run(command)
        self.assertEqual(again.stderr, b"veyruna: 1 note was there already and stays as it is\n")

    def test_an_overlapping_import_adds_what_is_new(self):
        first = self.home.notes("--from 720-01-01 --for 40 days --location Ebb", "overlap")
        later = "--from 720-01-10T11:23 --for 40 days --location Ebb"
        both = self.home.notes(later, "overlap")
        alone = self.home.notes(later, "later")
        self.assertEqual(set(both), set(first) | set(alone))
        common = set(first) & set(alone)
        self.assertGreater(len(common), 500)
        for name in common:
            self.assertEqual(first[name], alone[name])
        # Of what both stretches hold nothing is called differently.
        begin, end = ("720-01-10", "11:23"), ("720-02-11", "00:00")
        for heads in first, alone:
            for name, head in heads.items():
                if begin < label_of(head["fc-description"]) < end:
                    self.assertIn(name, common)

    def test_players_get_what_is_seen_and_nothing_else(self):
        for folder, arguments in [("ebb", FORTY_DAYS_AT_EBB), ("all", THREE_DAYS_EVERYWHERE)]:
            seen = {
                (record["date"], record["description"])
                for record in self.home.records(arguments)
                if record["seen"]
            }
            self.assertGreater(len(seen), 100)
            notes = self.home.notes(arguments, f"players-{folder}", "--visibility", "player")
            told = {self.told(head["fc-description"]) for head in notes.values()}
            self.assertEqual(told, seen)
            calendar = self.home.calendar(arguments, "--visibility", "player")
            told = {self.told(event["description"]) for event in calendar["events"]}
            self.assertEqual(told, seen)
            visible = {event["visibility"] for event in calendar["events"]}
            self.assertEqual(visible, {"player-visible"})
            everything = self.home.calendar(arguments)["events"]
            self.assertEqual({event["visibility"] for event in everything}, {"gm-only"})
            self.assertGreater(len(everything), len(calendar["events"]))

    def told(self, description):
        """The date and words of a description, without the places."""
        label, words = description.split(" OST: ", 1)
        return label.replace(" ", "T"), words.split(". From ")[0].removesuffix(".")

    def test_names_of_places_break_nothing(self):
        arguments = "--from 720-01-01 --for 1 day --location all"
        notes = self.home.notes(arguments, "nasty")
        rows = [row for row in self.home.records(arguments) if row["kind"] == "rise"]
        names = {
            head["fc-display-name"] for head in notes.values() if "-rise-" in head["veyruna-id"]
        }
        plain = {
            re.sub(r"[\r\n\t\x00-\x1f\x7f-\x9f\u2028\u2029]", " ", row["place"]) for row in rows
        }
        self.assertGreater(len(plain), len(NASTY))
        self.assertEqual({name.split(" rises over ")[1] for name in names}, plain)
        self.home.calendar(arguments)
        for name in notes:
            self.assertRegex(name, r"^[0-9][a-z0-9-]{0,88}[a-z0-9]$")

    def test_what_does_not_fit_is_refused(self):
        stretch = "events --from 720-01-01 --for 9 days"
        for command, message in {
            f"{stretch} --format calendarium": "needs --out DIR",
            f"{stretch} --format calendarium --out x -o y": "takes no -o",
            f"{stretch} --format seasons-stars --out x": "give -o FILE",
            f"{stretch} --format seasons-stars --visibility all": "gm or player",
            f"{stretch} --format seasons-stars --visibility player": "needs a place",
            f"{stretch} --format seasons-stars --size 9": '"9"',
            f"{stretch} --visibility gm": "belongs to --format calendarium and seasons-stars",
            f"{stretch} --out x": '--out "x" belongs to --format calendarium\n',
            f"{stretch} --format calendarum": "calendarium or seasons-stars",
            "events --from @-9 --to @9 --format seasons-stars": "before the first midnight",
            "calendar": "needs --format calendarium or seasons-stars",
            "calendar --format json": '"json"',
            "calendar --format calendarium --year 0": '"0"',
        }.items():
            result = self.home.run(command)
            self.assertEqual((result.returncode, result.stdout), (2, b""), command)
            self.assertIn(message, result.stderr.decode(), command)
        self.assertFalse((self.home.folder / "x").exists())

    def test_the_calendar_is_that_of_the_world(self):
        for year in [1, 720, 1243]:
            stars = json.loads(self.home.written(f"calendar --year {year} --format seasons-stars"))
            Draft7Validator(json.loads(SCHEMA.read_text(encoding="utf-8"))).validate(stars)
            obsidian = json.loads(self.home.written(f"calendar --year {year} --format calendarium"))
            self.assertEqual(
                [(m["name"], m["days"]) for m in stars["months"]], [(name, 30) for name in MONTHS]
            )
            self.assertEqual(
                [(m["name"], m["length"]) for m in obsidian["static"]["months"]],
                [(name, 30) for name in MONTHS],
            )
            self.assertEqual(stars["year"]["currentYear"], year)
            self.assertEqual(obsidian["current"], {"year": year, "month": 0, "day": 1})
            self.assertEqual(obsidian["static"]["leapDays"], [])
            self.assert_moon_is_that_of_the_sky(year, stars["moons"], obsidian["static"]["moons"])

    def assert_moon_is_that_of_the_sky(self, year, stars, obsidian):
        (ivro,), (moon,) = stars, obsidian
        self.assertEqual((ivro["name"], moon["name"]), ("Ivro", "Ivro"))
        self.assertEqual(sum(phase["length"] for phase in ivro["phases"]), ivro["cycleLength"])
        first = ivro["firstNewMoon"]
        epoch = (first["year"] - 1) * 360 + (first["month"] - 1) * 30 + first["day"] - 1
        for record in self.home.records(f"--from {year}-01-01 --for 30 years --kind moon"):
            y, m, d = map(int, record["date"].split("T")[0].split("-"))
            day = (y - 1) * 360 + (m - 1) * 30 + d - 1
            wanted = 0 if record["phase"] == "new" else 15
            self.assertEqual((day - epoch) % ivro["cycleLength"], wanted, record["date"])
            self.assertEqual((day - moon["offset"]) % moon["cycle"], wanted, record["date"])

    def test_the_schema_finds_what_is_spoiled(self):
        validator = Draft7Validator(json.loads(SCHEMA.read_text(encoding="utf-8")))
        calendar = self.home.calendar("--from 720-01-01 --for 90 days")

        def spoiled(**changes):
            other = copy.deepcopy(calendar)
            other["events"][0].update(changes)
            return other

        self.assertTrue(validator.is_valid(spoiled()))
        for changes in [
            {"visibility": "players"},
            {"id": "Full moon"},
            {"id": "x" * 101},
            {"startTime": "24:00:00"},
            {"remark": ""},
            {"recurrence": {"type": "fixed", "month": 0, "day": 1}},
            {"recurrence": {"type": "yearly", "month": 1, "day": 1}},
        ]:
            self.assertFalse(validator.is_valid(spoiled(**changes)), changes)


if __name__ == "__main__":
    unittest.main()
