// Whatever is asked, the answer is a value or an error that quotes it; nothing is thrown, and the engine
// goes on.
import assert from "node:assert/strict";
import { test } from "node:test";

import { refusal } from "./native.mjs";
import { seeded } from "./seeded.mjs";

const { load } = await import(process.env.VEYRUNA_MODULE);
const veyruna = await load();

const sky = { moment: "720-06-12T22:30", lat: "40.5N", long: "20.9W" };
const place = { lat: 40.5, long: -20.9 };
const year = { from: "720-01-01", for: "1 year" };

const thing = { toString: () => "thing" };
const angry = {
  toString() {
    throw new Error("no");
  },
};

/** What is asked, and what the error has to say. */
const bad = [
  [() => veyruna.moment(), /^lat is missing/],
  [() => veyruna.moment(null), /^lat is missing/],
  [() => veyruna.moment(7), /^lat is missing/],
  [() => veyruna.moment("720"), /"0" is nothing that can be said here/],
  [() => veyruna.moment({ ...sky, moment: NaN }), /^moment: "@NaN" is not accepted; give a date/],
  [() => veyruna.moment({ ...sky, moment: Infinity }), /"@Infinity" is not accepted/],
  [() => veyruna.moment({ ...sky, moment: 1e300 }), /"@1e\+300" is too far away/],
  [() => veyruna.moment({ ...sky, moment: -1e9 - 1 }), /too far away/],
  [() => veyruna.moment({ ...sky, moment: "720-13-01" }), /"720-13-01" is not accepted/],
  [() => veyruna.moment({ ...sky, moment: "720-12-31" }), /"720-12-31" is not accepted/],
  [() => veyruna.moment({ ...sky, moment: "720-12-30T25:00" }), /is not accepted/],
  [() => veyruna.moment({ ...sky, moment: "0-01-01" }), /is not accepted/],
  [() => veyruna.moment({ ...sky, moment: "9999999-01-01" }), /is not accepted/],
  [() => veyruna.moment({ ...sky, moment: thing }), /"thing" is not accepted/],
  [() => veyruna.moment({ ...sky, moment: angry }), /cannot be read: no/],
  [() => veyruna.moment({ ...sky, moment: Symbol("x") }), /"Symbol\(x\)" is not accepted/],
  [() => veyruna.moment({ ...sky, moment: ["720-01-01", "721-01-01"] }), /are two; give one/],
  [() => veyruna.moment({ ...sky, moment: "\u0000\ud800&=%" }), /is not accepted/],
  [() => veyruna.moment({ ...sky, lat: 91 }), /^lat: "91" is not accepted; give degrees from -90/],
  [() => veyruna.moment({ ...sky, lat: "north" }), /^lat: "north" is not accepted/],
  [() => veyruna.moment({ ...sky, lat: NaN }), /^lat: "NaN" is not accepted/],
  [() => veyruna.moment({ ...sky, long: -181 }), /^long: "-181" is not accepted/],
  [() => veyruna.moment({ ...sky, long: "" }), /^long: "" is not accepted/],
  [
    () => veyruna.moment({ ...sky, local: "yes" }),
    /^local: "yes" is not accepted; give true or false/,
  ],
  [
    () => veyruna.moment({ ...sky, latt: 1 }),
    /^"latt" is nothing that can be said here; give moment,/,
  ],
  [() => veyruna.document("sky", sky), /^name: "sky" is not accepted; give one of star-map,/],
  [() => veyruna.document(undefined, sky), /^name is missing; give one of star-map,/],
  [
    () => veyruna.record("star-map", sky),
    /^name: "star-map" is not accepted; give one of horoscope,/,
  ],
  [() => veyruna.marks("hourly", sky), /^name: "hourly" is not accepted; give one of star-map,/],
  [() => veyruna.interpretation({}), /^lat is missing/],
  [() => veyruna.events(), /^from is missing|cannot be read/],
  [() => veyruna.events({ from: "720-01-01" }), /^give either to, a moment, or for, a length/],
  [() => veyruna.events({ ...year, to: "721-01-01" }), /^give either to/],
  [
    () => veyruna.events({ from: "720-01-01", to: "719-01-01" }),
    /^to: "719-01-01" is before from "720-01-01"/,
  ],
  [() => veyruna.events({ from: "720-01-01", for: "a while" }), /^for: "a while" is not accepted/],
  [
    () => veyruna.events({ ...year, kinds: ["comet"] }),
    /^kinds: "comet" is not accepted; give one or/,
  ],
  [() => veyruna.events({ ...year, kinds: ["rise"] }), /a rise is seen from a place/],
  [() => veyruna.events({ ...year, local: true }), /^local: local clocks are those of a place/],
  [() => veyruna.events({ ...year, place: { lat: 1 } }), /^long is missing/],
  [
    () => veyruna.events({ from: "1-01-01", to: "2000000-01-01", kinds: ["moon"] }),
    /more than 500000/,
  ],
  [() => veyruna.search({ ...year }), /^conditions is empty/],
  [() => veyruna.search({ ...year, conditions: [] }), /^conditions is empty/],
  [() => veyruna.search({ ...year, conditions: "moon fulll" }), /the nearest is "full"/],
  [() => veyruna.search({ ...year, conditions: "night" }), /is different from place to place/],
  [
    () => veyruna.search({ ...year, conditions: "moon full", first: 0 }),
    /^first: "0" is not accepted/,
  ],
  [() => veyruna.search({ ...year, conditions: "(".repeat(10000) }), /condition/],
];

test("bad input of every kind is an error that quotes it", () => {
  for (const [ask, pattern] of bad) {
    const answer = ask();
    assert.equal(answer.ok, false, `${ask}: ${JSON.stringify(answer).slice(0, 200)}`);
    assert.match(answer.error, pattern);
    assert.ok(veyruna.moment(sky).ok, "the engine goes on");
  }
});

test("the words are the command’s", () => {
  for (const [option, name, text] of [
    ["--lat", "lat", "91"],
    ["--long", "long", "east"],
  ]) {
    const theirs = refusal([`${option}=${text}`, "moment"]);
    const ours = veyruna.moment({ ...sky, [name]: text }).error;
    assert.equal(theirs.trim(), `veyruna: ${ours.replace(name, option)}`);
  }
  const theirs = refusal(["search", "--from", "720-01-01", "--for", "1 year", "moon fulll"]);
  const ours = veyruna.search({ ...year, conditions: "moon fulll" }).error;
  assert.equal(theirs.trim(), `veyruna: ${ours}`);
});

test("ten thousand questions of nonsense", () => {
  const random = seeded(17);
  const pick = (list) => list[Math.floor(random() * list.length)];
  const values = [
    undefined,
    null,
    true,
    "",
    " ",
    "0",
    "-0",
    "1e400",
    "−5",
    "40.5°N",
    "180W",
    "@",
    "@@",
    "@1e9",
    "720-06-12",
    "720-06-12T",
    "720-06-12T24:00",
    "T12:00",
    NaN,
    -Infinity,
    1e21,
    5e-324,
    {},
    [],
    [[]],
    "\u0000",
    "\ud83d",
    "💫".repeat(50),
    "x".repeat(5000),
    "%",
    "%zz",
    "&ask=about",
    "+",
    "1 year",
    "moon",
    "moon,,rise",
    "moon full",
    "not not night",
    "any of (",
    -1,
    1.5,
    500001n,
  ];
  const calls = [
    () =>
      veyruna.moment({
        moment: pick(values),
        lat: pick(values),
        long: pick(values),
        local: pick(values),
      }),
    () =>
      veyruna.document(pick(["moment", ...values]), {
        moment: pick(values),
        lat: pick(values),
        long: 0,
      }),
    () => veyruna.record(pick(["positions", ...values]), { moment: pick(values), ...place }),
    () => veyruna.marks(pick(["star-map", ...values]), { moment: pick(values), ...place }),
    () =>
      veyruna.events({
        from: pick(values),
        for: pick(["1 day", ...values]),
        kinds: pick(values),
        place: pick([place, ...values]),
        placeName: pick(values),
        local: pick(values),
      }),
    () =>
      veyruna.search({
        conditions: pick(values),
        from: pick(values),
        for: pick(["1 day", ...values]),
        place: pick([place, ...values]),
        first: pick(values),
      }),
  ];
  let refused = 0;
  for (let i = 0; i < 10_000; i += 1) {
    const answer = pick(calls)();
    assert.ok(answer.ok || answer.error.length > 10);
    assert.doesNotMatch(answer.error ?? "", /broken invariant|the engine stopped/);
    refused += answer.ok ? 0 : 1;
  }
  assert.ok(refused > 5_000 && refused < 10_000, `${refused} of 10000 were refused`);
});
