// What the module tells as data is what the command writes in JSON. The two are compiled with different
// mathematical libraries, whose last bits differ now and then: numbers agree to a billionth, all else to
// the letter.
import assert from "node:assert/strict";
import { test } from "node:test";

import { written } from "./native.mjs";

const { load } = await import(process.env.VEYRUNA_MODULE);
const veyruna = await load();

const place = { lat: "40.5N", long: "20.9W" };
const placeOptions = ["--lat", "40.5N", "--long", "20.9W"];

function assertSame(ours, theirs, path = "") {
  if (typeof theirs === "number" && typeof ours === "number") {
    const allowed = 1e-9 * Math.max(1, Math.abs(theirs));
    assert.ok(Math.abs(ours - theirs) <= allowed, `${path}: ${ours} is not ${theirs}`);
  } else if (theirs !== null && typeof theirs === "object") {
    assert.deepEqual(Object.keys(ours ?? {}), Object.keys(theirs), path);
    for (const key of Object.keys(theirs)) {
      assertSame(ours[key], theirs[key], `${path}.${key}`);
    }
  } else {
    assert.equal(ours, theirs, path);
  }
}

function valueOf(result) {
  assert.ok(result.ok, result.error);
  return result.value;
}

/** The kinds of events that need a place, or those that do not. */
function kindsThat(needPlace) {
  return veyruna.eventKinds.filter((kind) => kind.needsPlace === needPlace).map(({ kind }) => kind);
}

test("fifty years of events, and years of risings", () => {
  for (const [length, kinds, asked, options] of [
    ["50 years", [], {}, []],
    ["50 years", kindsThat(false), { place }, placeOptions],
    ["3 years", kindsThat(true), { place }, placeOptions],
    ["50 years", ["conjunction:all", "opposition:all"], {}, []],
  ]) {
    const list = kinds.length > 0 ? ["--kind", kinds.join(",")] : [];
    const range = ["--from", "700-01-01", "--for", length, ...list];
    const theirs = JSON.parse(written(["events", ...range, ...options, "--format", "json"]));
    const ours = valueOf(veyruna.events({ from: "700-01-01", for: length, kinds, ...asked }));
    assert.ok(theirs.events.length > 5000, `${length} of ${kinds}`);
    assertSame(ours, theirs);
  }
});

/** The command's table of events, written of the module's data. */
function tableOf(events, isFromPlace) {
  const kindWidth = Math.max(...veyruna.eventKinds.map(({ kind }) => kind.length));
  const degrees = (angle, width) =>
    `${angle.toFixed(1).replace(/^-0\.0$/, "0.0")}°`.padStart(width);
  const line = ({ moment, sight, kind, what }) =>
    [moment.padEnd(19), ...(isFromPlace ? sight : []), kind.padEnd(kindWidth), what].join("  ");
  const lines = events.map((event) =>
    line({
      moment: `${event.date.replace("T", " ")} OST`,
      sight: isFromPlace && [
        event.local_clock.padEnd(5),
        degrees(event.altitude_degrees, 8),
        degrees(event.azimuth_degrees, 7),
        (event.seen ? "yes" : "no").padEnd(4),
      ],
      kind: event.kind,
      what: event.description,
    }),
  );
  const sight = ["Local", "Altitude", "Azimuth", "Seen"];
  return [line({ moment: "Moment", sight, kind: "Kind", what: "What" }), ...lines, ""].join("\n");
}

test("fifty years of events as the command writes them, to the byte", () => {
  for (const [length, kinds, asked, options] of [
    ["50 years", [], {}, []],
    ["50 years", kindsThat(false), { place }, placeOptions],
    ["3 years", kindsThat(true), { place }, placeOptions],
  ]) {
    const list = kinds.length > 0 ? ["--kind", kinds.join(",")] : [];
    const range = ["--from", "700-01-01", "--for", length, ...list];
    const theirs = written(["events", ...range, ...options]).split("\n");
    const { events } = valueOf(veyruna.events({ from: "700-01-01", for: length, kinds, ...asked }));
    const ours = tableOf(events, options.length > 0).split("\n");
    assert.ok(theirs.length > 5000);
    assert.equal(ours.length, theirs.length);
    theirs.forEach((line, i) => assert.equal(ours[i], line));
  }
});

test("searches", () => {
  for (const conditions of [["moon full"], ["keep twisted", "night"], ["dunmor conjunct galvi"]]) {
    const theirs = JSON.parse(
      written([
        "search",
        "--from",
        "720-01-01",
        "--to",
        "740-01-01",
        ...placeOptions,
        "--local",
        ...conditions,
        "--format",
        "json",
      ]),
    );
    const ours = veyruna.search({
      conditions,
      from: "720-01-01",
      to: "740-01-01",
      place,
      local: true,
    });
    assert.ok(theirs.intervals.length > 0, conditions);
    assertSame(valueOf(ours), theirs);
  }
});

test("at most so many answers of a search", () => {
  const asked = { conditions: "moon full", from: "720-01-01", for: "1 year" };
  assert.equal(valueOf(veyruna.search(asked)).intervals.length, 12);
  assert.equal(valueOf(veyruna.search({ ...asked, first: 5 })).intervals.length, 5);
});

test("the values of documents", () => {
  const sky = { moment: "720-06-12T22:30", ...place };
  const options = ["--month", "6", "--day", "12", "--hour", "22:30", ...placeOptions];
  for (const name of ["positions", "moment", "hourly", "monthly", "daily", "yearly", "horoscope"]) {
    const theirs = JSON.parse(written([...options, name, "--format", "json"]));
    assertSame(valueOf(veyruna.record(name, sky)), theirs);
  }
});

test("the interpretation says what the panel says", () => {
  const sky = { moment: "720-06-12T22:30", ...place };
  const { keep, lines } = valueOf(veyruna.interpretation(sky));
  const panel = valueOf(veyruna.marks("horoscope", sky)).marks.filter(
    (mark) => mark.kind === "panel_line",
  );
  const said = panel.map((mark) => mark.read_out.join(" ")).join("\n");
  assert.ok(said.includes(keep));
  assert.equal(lines.length, 20);
  for (const line of lines) {
    for (const text of [line.subject, line.sign, line.verdict, line.code, line.body_part]) {
      assert.ok(text === undefined || said.includes(text), text);
    }
    assert.ok(said.includes(line.heading), line.heading);
  }
});

test("a moment there and back", () => {
  for (const moment of [
    "1-01-01",
    "720-06-12T22:30",
    "2777777-12-30T23:59",
    "720-Cendo-12T07:05",
  ]) {
    const there = valueOf(veyruna.moment({ moment, ...place }));
    const back = valueOf(veyruna.moment({ moment: there.base_time, ...place }));
    assert.deepEqual(back, there);
    const [date, coordinates] = there.address.split(";");
    const [lat, long] = coordinates.split(",");
    assert.deepEqual(valueOf(veyruna.moment({ moment: date, lat, long })), there);
    const { local } = there;
    if (local !== null) {
      const ofPlace = valueOf(veyruna.moment({ moment: local.date, local: true, ...place }));
      assert.equal(ofPlace.local.date, local.date);
    }
  }
  const early = valueOf(veyruna.moment({ moment: -100.5, ...place }));
  assert.equal(early.standard, null);
  assert.equal(early.address, "@-100.5;40.5N,20.9W");
});

test("the marks of a chart lie on it", () => {
  const { summary, marks } = valueOf(
    veyruna.marks("star-map", { moment: "720-06-12T22:30", ...place }),
  );
  assert.match(summary, /^In sight are /);
  assert.ok(marks.length > 100);
  assert.ok(marks.some((mark) => mark.kind === "body" && mark.name === "Ivro"));
});

test("what there is to ask for", () => {
  assert.equal(veyruna.places.length, 13);
  assert.equal(veyruna.months.length, 12);
  assert.equal(veyruna.months[6], "Cendo");
  assert.equal(`veyruna ${veyruna.version}`, written(["--version"]).split(" (")[0]);
  for (const { document } of veyruna.documents) {
    assert.ok(veyruna.document(document, { moment: 0, ...place }).ok, document);
  }
});
