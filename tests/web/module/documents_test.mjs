// Every document of a thousand moments and places is the command's, to the byte.
import assert from "node:assert/strict";
import { readFileSync, readdirSync, writeFileSync } from "node:fs";
import { join } from "node:path";
import { test } from "node:test";

import { withFolder, written } from "./native.mjs";
import { seeded } from "./seeded.mjs";

const { load } = await import(process.env.VEYRUNA_MODULE);
const veyruna = await load();

const titles = {
  "star-map": "Star Map",
  horoscope: "Horoscope",
  hourly: "Sun & Moon Hourly",
  monthly: "Sun & Moon Monthly",
  daily: "Positions Daily",
  yearly: "Positions Yearly",
  positions: "Planets",
  moment: "Moment",
};

/** Moments of every age, at hours with a fraction; places anywhere, the poles among them. */
function randomSkies(count) {
  const random = seeded(720);
  const within = (least, most) => least + random() * (most - least);
  const whole = (least, most) => Math.floor(within(least, most + 1));
  const padded = (number) => String(number).padStart(2, "0");
  return Array.from({ length: count }, (_, i) => {
    const year = i % 3 === 0 ? whole(1, 2_700_000) : whole(1, 3000);
    return {
      day: `${year}-${padded(whole(1, 12))}-${padded(whole(1, 30))}`,
      hour: within(0, 24).toFixed(6),
      lat: i % 50 === 0 ? (i % 100 === 0 ? "90" : "-90") : within(-90, 90).toFixed(5),
      long: i % 40 === 0 ? "180" : within(-180, 180).toFixed(5),
    };
  });
}

test("the documents of a thousand moments and places", async () => {
  const skies = randomSkies(1000);
  const table = skies.map(
    ({ day, hour, lat, long }, i) => `r${i},${day},${hour},"${lat}, ${long}"\n`,
  );
  await withFolder(async (folder) => {
    writeFileSync(join(folder, "table.csv"), `name,date,hour,place\n${table.join("")}`);
    const out = join(folder, "out");
    const documents = Object.keys(titles).join(",");
    written(["batch", join(folder, "table.csv"), "--out", out, "--documents", documents], folder);
    const paper = join(folder, "paper");
    written(
      ["batch", join(folder, "table.csv"), "--out", paper, "--documents", "horoscope", "--bw"],
      folder,
    );
    const byRowAndTitle = (files) =>
      new Map(files.map((name) => [name.split(" - ").slice(0, 2).join(" - "), name]));
    const files = byRowAndTitle(readdirSync(out));
    const papers = byRowAndTitle(readdirSync(paper));
    assert.equal(files.size, 8 * skies.length);
    skies.forEach(({ day, hour, lat, long }, i) => {
      const sky = { moment: `${day}T${hour}`, lat, long };
      const isTheSame = (document, file) => {
        const ours = veyruna.document(document, sky);
        assert.ok(ours.ok, ours.error);
        if (ours.value !== readFileSync(file, "utf8")) {
          assert.fail(`${document} of ${JSON.stringify(sky)} is not the command's`);
        }
      };
      for (const [document, title] of Object.entries(titles)) {
        isTheSame(document, join(out, files.get(`r${i} - ${title}`)));
      }
      isTheSame("horoscope-black-on-white", join(paper, papers.get(`r${i} - Horoscope`)));
    });
  });
});

test("the documents of moments at the ends of time, of local clocks and of days before the first", () => {
  const cases = [
    [["--base-time", "-1000000000"], { moment: -1e9 }],
    [["--base-time", "1000000000"], { moment: "@1000000000" }],
    [["--base-time", "-0.75"], { moment: -0.75 }],
    [["--base-time", "259001.4375"], { moment: 259001.4375 }],
    [
      ["--year", "720", "--month", "6", "--day", "12", "--hour", "22:30", "--local"],
      { moment: "720-Ulvenhar-12T22:30", local: true },
    ],
  ];
  const places = [
    ["90", "0"],
    ["-90", "180"],
    ["0", "-180"],
    ["40.5N", "20.9W"],
  ];
  for (const [options, moment] of cases) {
    for (const [lat, long] of places) {
      for (const document of Object.keys(titles)) {
        const ours = veyruna.document(document, { ...moment, lat, long });
        const theirs = written([...options, `--lat=${lat}`, `--long=${long}`, document]);
        assert.equal(ours.ok, true, ours.error);
        assert.equal(ours.value, theirs, `${document} ${options} ${lat} ${long}`);
      }
    }
  }
});

test("the labels stand in the moment’s own text", () => {
  const sky = { moment: "720-06-12T22:30", lat: "40.5N", long: "20.9W" };
  const label = (name) => veyruna.document(name, sky).value;
  assert.equal(
    label("moment"),
    `${label("date")}\nNext full moon: ${label("next-full-moon")}\n` +
      `Next new moon: ${label("next-new-moon")}\n`,
  );
});
