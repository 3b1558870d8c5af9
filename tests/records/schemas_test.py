"""What the command writes for programs is what its schemas say, in every form.

    schemas_test.py VEYRUNA

Each command runs for real, under a home with saved places of every sort. Its JSON is read strictly and
checked by a validator; JSON Lines and CSV are to hold the same values, numbers to the last bit."""

import csv
import io
import json
import math
import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from jsonschema import Draft202012Validator

VEYRUNA = os.path.abspath(sys.argv.pop(1))

# Names that a person may well save.
NAMES = [
    'The "Ash", by night',
    "Two\nlines\r\nand a tab\t",
    " blanks at both ends ",
    "Côte d'Ebb ☾ 𝄞",
    "=1+1",
    "NaN",
    "null,true;false",
    "\u0007\u0085bell",
    "{}[]\\/",
    "",
]
FAR_AWAY = 1e300

# For each schema the commands whose output it describes.
COMMANDS = {
    "conjunctions": [
        "conjunctions --rows 400 --step 7.3",
        "conjunctions --rows 0 --step 1",
        "conjunctions --base-time -1e6 --rows 3 --step 1/3",
        "daily",
        "yearly",
    ],
    "ephemeris": [
        "ephemeris --rows 500 --step 1.1",
        "ephemeris --rows 30 --step 1 --lat 77.5",
        "ephemeris --rows 5 --step 1/24 --base-time -3",
        "hourly",
        "monthly --location Ebb",
    ],
    "events": [
        "events --from 720-01-01 --for 3 years",
        "events --from 720-01-01 --for 1 year --kind conjunction:all,opposition:all",
        "events --from 720-01-01 --for 40 days --lat 66 --long 3E",
        "events --from 720-01-01 --for 3 days --location all",
        "events --from @-400 --to @10",
        "events --from 720-01-01 --for 1 days --kind eclipse",
    ],
    "interpretation": [
        "horoscope",
        "horoscope --month Ulvenhar --day 12 --lat -80",
        "horoscope --base-time -400.5 --location Ebb",
    ],
    "locations": ["locations"],
    "moment": ["moment", "moment --location Manual", "moment --base-time -90.25 --lat 90"],
    "positions": [
        "positions",
        "positions --lat -90 --long 180",
        "positions --base-time -7000.125 --long 12E",
        "positions --year 2777777 --month 12 --hour 23:59",
    ],
    "search": [
        "search --from 720-01-01 --for 3 years eclipse",
        "search --from 720-01-01 --for 1 month --lat 66 --long 3E night",
        "search --from 720-01-01 --for 1 month --location Ebb twilight --first 7",
        "search --from @-10 --to @10 --lat -33 day",
    ],
}


def refuse_constant(word):
    raise ValueError(f"{word} is no JSON")


def strict(text):
    """JSON as its standard has it: neither NaN nor two members of one name."""

    def members(pairs):
        names = [name for name, _ in pairs]
        if len(names) != len(set(names)):
            raise ValueError(f"a name stands twice in {names}")
        return dict(pairs)

    return json.loads(text, parse_constant=refuse_constant, object_pairs_hook=members)


def as_csv(value):
    """The text that a value of JSON is to be in CSV, numbers apart."""
    if isinstance(value, bool):
        return "true" if value else "false"
    if isinstance(value, list):
        return " ".join(map(str, value))
    return value


class Home:
    """A person's home with saved places, one of them on no globe."""

    def __init__(self, folder):
        self.folder = folder
        data = Path(folder) / "data/VeyrunaAstro"
        data.mkdir(parents=True)
        places = [(name, 0.1 * i, -0.2 * i) for i, name in enumerate(NAMES)]
        places += [("Ebb", 0.25, 0.125), ("Beyond", FAR_AWAY, 0.0)]
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

    def run(self, *words):
        environment = {
            "HOME": self.folder,
            "XDG_DATA_HOME": f"{self.folder}/data",
            "XDG_CONFIG_HOME": f"{self.folder}/config",
            "PATH": os.defpath,
        }
        return subprocess.run(
            [VEYRUNA, *words], capture_output=True, check=False, cwd=self.folder, env=environment
        )

    def written(self, command, *further):
        result = self.run(*command.split(), *further)
        if result.returncode != 0 or result.stderr:
            raise AssertionError(f"{command} {further}: {result.stderr.decode()}")
        return result.stdout.decode("utf-8")


class SchemasTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.home = Home(folder.name)

    def schema(self, name, form="json"):
        schema = strict(self.home.written(f"schema {name} --format {form}"))
        Draft202012Validator.check_schema(schema)
        return schema

    def rows_member(self, name):
        properties = self.schema(name)["properties"]
        return next(member for member, what in properties.items() if "items" in what)

    def every_command(self):
        for name, commands in COMMANDS.items():
            for command in commands:
                yield name, command

    def test_every_schema_is_tried(self):
        listed = [line.split()[0] for line in self.home.written("schema").splitlines()]
        self.assertEqual(sorted(COMMANDS), listed)

    def test_documents_are_what_their_schema_says(self):
        for name, command in self.every_command():
            with self.subTest(command=command):
                document = strict(self.home.written(command, "--format", "json"))
                Draft202012Validator(self.schema(name)).validate(document)
                self.assertEqual(document["schema"]["name"], name)

    def test_every_line_is_a_document_with_the_same_values(self):
        for name, command in self.every_command():
            with self.subTest(command=command):
                validator = Draft202012Validator(self.schema(name, "jsonl"))
                document = strict(self.home.written(command, "--format", "json"))
                rows = document.pop(self.rows_member(name))
                lines = self.home.written(command, "--format", "jsonl").split("\n")
                self.assertEqual(lines.pop(), "")
                self.assertEqual(len(lines), len(rows))
                for line, row in zip(lines, rows):
                    read = strict(line)
                    validator.validate(read)
                    self.assertEqual(read, {**document, **row})

    def test_csv_has_the_same_values(self):
        for name, command in self.every_command():
            with self.subTest(command=command):
                document = strict(self.home.written(command, "--format", "json"))
                schema = self.schema(name, "jsonl")["properties"]
                columns = [column for column in schema if column != "schema"]
                rows = document.pop(self.rows_member(name))
                text = self.home.written(command, "--format", "csv")
                reader = csv.DictReader(io.StringIO(text, newline=""), strict=True)
                self.assertEqual(reader.fieldnames, columns)
                read = list(reader)
                self.assertEqual(len(read), len(rows))
                for found, row in zip(read, rows):
                    self.compare(schema, found, {**document, **row})

    def compare(self, schema, found, expected):
        for column, text in found.items():
            if column not in expected:
                self.assertEqual(text, "", column)
            elif schema[column]["type"] == "number":
                self.assertEqual(float(text), expected[column], column)
                self.assertTrue(math.isfinite(float(text)), column)
            elif schema[column].get("items") == {"type": "number"}:
                self.assertEqual([float(part) for part in text.split()], expected[column], column)
            else:
                self.assertEqual(text, as_csv(expected[column]), column)

    def test_a_spoiled_document_is_not_what_the_schema_says(self):
        def without_version(document):
            del document["schema"]["version"]

        def of_another_version(document):
            document["schema"]["version"] += 1

        def with_a_member_more(document):
            document["remark"] = ""

        def without_a_required_member(document):
            del document["events"][0]["kind"]

        def with_a_row_member_more(document):
            document["events"][0]["colour"] = "red"

        def with_a_number_as_text(document):
            document["events"][0]["base_time_days"] = "12"

        def with_no_number(document):
            document["events"][0]["base_time_days"] = None

        def of_no_kind(document):
            document["events"][0]["kind"] = "rain"

        def with_a_body_that_is_none(document):
            document["events"][0]["bodies"] = ["Thessil"]

        def with_another_date(document):
            document["events"][0]["date"] = "720-6-12 22:30"

        text = self.home.written("events --from 720-01-01 --for 1 year --format json")
        validator = Draft202012Validator(self.schema("events"))
        self.assertTrue(validator.is_valid(strict(text)))
        for spoil in [
            without_version,
            of_another_version,
            with_a_member_more,
            without_a_required_member,
            with_a_row_member_more,
            with_a_number_as_text,
            with_no_number,
            of_no_kind,
            with_a_body_that_is_none,
            with_another_date,
        ]:
            document = strict(text)
            spoil(document)
            self.assertFalse(validator.is_valid(document), spoil.__name__)

    def test_what_is_no_json_is_not_read(self):
        for text in ['{"a": NaN}', '{"a": -Infinity}', '{"a": 1, "a": 2}']:
            with self.assertRaises(ValueError):
                strict(text)

    def test_a_place_on_no_globe_has_no_numbers(self):
        places = strict(self.home.written("locations --format json"))["locations"]
        by_name = {place["name"]: place for place in places}
        self.assertEqual(sorted(by_name), sorted([*NAMES, "Ebb", "Beyond", "Manual"]))
        self.assertEqual(by_name["Beyond"], {"name": "Beyond", "is_on_globe": False})
        self.assertAlmostEqual(by_name["Ebb"]["latitude_degrees"], math.degrees(0.25), places=12)
        self.assertAlmostEqual(by_name["Ebb"]["longitude_degrees"], math.degrees(0.125), places=12)
        self.assertEqual(places[0]["name"], "Manual")

    def test_the_ending_of_a_file_says_its_form(self):
        for _, command in self.every_command():
            for form in ["json", "jsonl", "csv"]:
                with self.subTest(command=command, form=form):
                    file = Path(self.home.folder) / f"written.{form.upper()}"
                    self.assertEqual(self.home.written(command, "-o", file.name), "")
                    expected = self.home.written(command, "--format", form)
                    self.assertEqual(file.read_bytes().decode("utf-8"), expected)

    def test_all_writes_the_documents_that_have_values(self):
        listed = self.home.written("all --out some --format csv,json,txt").splitlines()
        stems = {Path(file).stem: set() for file in listed}
        for file in listed:
            stems[Path(file).stem].add(Path(file).suffix)
        self.assertEqual(len(stems), 7)
        self.assertEqual(stems.pop("horoscope"), {".json", ".csv"})
        for stem, endings in stems.items():
            self.assertEqual(endings, {".txt", ".json", ".csv"}, stem)
        hourly = (Path(self.home.folder) / "some/ephemeris-hourly.csv").read_text(encoding="utf-8")
        self.assertEqual(hourly, self.home.written("hourly --format csv"))

    def test_without_a_form_the_text_is_written(self):
        for name, command in self.every_command():
            if name == "interpretation":
                continue  # whose own form is a picture
            text = self.home.written(command)
            self.assertEqual(text, self.home.written(command, "--format", "txt"))
            self.assertNotIn("base_time_days", text)

    def test_what_has_no_schema_is_refused(self):
        for words, message in {
            ("schema", "hourly"): "conjunctions, ephemeris, events",
            ("schema", "events", "--format", "csv"): "json or jsonl",
            ("schema", "--format", "json"): "veyruna schema lists their names",
            ("star-map", "-o", "sky.json"): '"sky.json"',
            ("star-map", "--format", "csv"): '"csv"',
            ("base-time", "--format", "json"): '"json"',
            ("events", "--from", "720-01-01", "--for", "1 day", "--format", "pdf"): '"pdf"',
        }.items():
            result = self.home.run(*words)
            self.assertEqual(result.returncode, 2, words)
            self.assertEqual(result.stdout, b"", words)
            self.assertRegex(result.stderr.decode(), re.escape(message))


if __name__ == "__main__":
    unittest.main()
