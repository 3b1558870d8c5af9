// A page for a session: it cannot be brought out of its bounds, and players see what eyes can see.

import assert from "node:assert/strict";

import { until } from "../browser/patience.mjs";
import { desk, engine, openInputs, pageTests, phone, restsAt, textOf } from "./sky_page.mjs";

const from = "720-06-12T18:00";
const to = "720-06-13T02:00";
const ebb = { lat: 13.4, long: 8.8 };

async function session(more) {
  const days = async (moment) => (await engine()).moment({ moment, ...ebb }).value.base_time;
  return {
    title: "An evening in Ebb <i>",
    from,
    to,
    from_base_time: await days(from),
    to_base_time: await days(to),
    ...ebb,
    place: "Ebb",
    ...more,
  };
}

const momentOf = (page) =>
  page.evaluate(() => decodeURIComponent(location.hash).slice(1).split(";")[0]);

const becomes = (page, moment) =>
  page.until(
    `the moment is ${moment}`,
    (moment) => decodeURIComponent(location.hash).startsWith(`#${moment};`),
    moment,
  );

const bounded = (page, words) =>
  page.until(
    "the page says why",
    (words) => {
      const notice = document.querySelector("#notice");
      return notice.checkVisibility() && notice.textContent.includes(words);
    },
    words,
  );

pageTests("a session", (test) => {
  test("has its title and says its bounds", async (open) => {
    const page = await open(desk, { hash: "", session: await session() });
    assert.equal(await page.evaluate(() => document.title), "An evening in Ebb <i>");
    assert.equal(await textOf(page, "h1"), "An evening in Ebb <i>");
    assert.match(await textOf(page, "#shown-place"), /Ebb/);
    await becomes(page, from);
    const bounds = await textOf(page, "#bounds");
    assert.match(bounds, /18:00/);
    assert.match(bounds, /02:00/);
  });

  for (const [what, hash, moment] of [
    ["earlier", "#720-06-12T17:59;13.4N,8.8E", from],
    ["much earlier", "#1-01-01T00:00;13.4N,8.8E", from],
    ["later", "#720-06-13T02:01;13.4N,8.8E", to],
    ["much later", "#@999999;13.4N,8.8E", to],
  ]) {
    test(`is not left by opening an address that is ${what}`, async (open) => {
      const page = await open(phone, { hash, session: await session() });
      await becomes(page, moment);
      await bounded(page, "This session");
    });

    test(`is not left by changing the address to one that is ${what}`, async (open) => {
      const page = await open(desk, {
        hash: "#720-06-12T20:00;13.4N,8.8E",
        session: await session(),
      });
      await becomes(page, "720-06-12T20:00");
      await page.evaluate((hash) => void (location.hash = hash), hash);
      await becomes(page, moment);
      await bounded(page, "This session");
    });
  }

  test("is not left by typing", async (open) => {
    const page = await open(phone, {
      hash: "#720-06-12T20:00;13.4N,8.8E",
      session: await session(),
    });
    await openInputs(page);
    await (await page.find("textbox", "Year")).write("721");
    await page.hands.key("Enter");
    await becomes(page, to);
    await bounded(page, "ends");
    await (await page.find("textbox", "Clock")).write("00:30");
    await page.hands.key("Enter");
    await becomes(page, "720-06-13T00:30");
    await (await page.select("#day")).focus();
    for (let day = 0; day < 2; ++day) await page.hands.key("ArrowUp");
    await becomes(page, from);
  });

  test("is not left by steps", async (open) => {
    const page = await open(desk, {
      hash: "#720-06-13T01:30;13.4N,8.8E",
      session: await session(),
    });
    for (const button of ["An hour later", "A day later", "A month later", "A year later"]) {
      await (await page.find("button", button)).press();
      await becomes(page, to);
    }
    await bounded(page, "ends");
    await (await page.find("button", "A year earlier")).press();
    await becomes(page, from);
    await (await page.find("button", "A step earlier")).press();
    await bounded(page, "begins");
    assert.equal(await momentOf(page), from);
  });

  for (const [button, pressed, moment] of [
    ["Play", "#play", to],
    ["Play backwards", "#play-back", from],
  ]) {
    test(`is not left by "${button}", which ends at its bound`, async (open) => {
      const page = await open(desk, {
        hash: "#720-06-12T22:00;13.4N,8.8E",
        session: await session(),
      });
      await (await page.select("#pace")).focus();
      await page.hands.key("End");
      await (await page.find("button", button)).press();
      await until("it stops", () =>
        page.evaluate(
          (id) => document.querySelector(id).getAttribute("aria-pressed") === "false",
          pressed,
        ),
      );
      await becomes(page, moment);
      await bounded(page, "This session");
    });
  }

  test("has all of its time on the bar and none beyond", async (open) => {
    const page = await open(desk, { hash: "", session: await session() });
    await (await page.select("#hour-bar")).focus();
    await page.hands.key("End");
    await becomes(page, to);
    await page.hands.key("Home");
    await becomes(page, from);
  });

  test("with one bound is open at its other end", async (open) => {
    const { from_base_time, title } = await session();
    const page = await open(desk, {
      hash: "#1000-01-01T00:00;13.4N,8.8E",
      session: { title, from, from_base_time },
    });
    await becomes(page, "1000-01-01T00:00");
    await page.evaluate(() => void (location.hash = "#5-01-01T00:00"));
    await becomes(page, from);
  });
});

pageTests("players", (test) => {
  test("have no horoscope, no tables, no events to come and no moons to come", async (open) => {
    const page = await open(phone, { hash: "", session: await session({ player: true }) });
    await openInputs(page);
    const text = await page.evaluate(() =>
      document.body.textContent.replace(
        document.querySelector("script[type=module]").textContent,
        "",
      ),
    );
    for (const word of [
      "Horoscope",
      "Interpretation",
      "Tonight",
      "Next moons",
      "Full moon",
      "Hourly",
      "Yearly",
    ]) {
      assert.ok(!text.includes(word), word);
    }
    const told = (await page.elements()).map(({ name }) => name).join("\n");
    assert.doesNotMatch(told, /horoscope|interpretation|next moon|tables/i);
  });

  test("cannot go to another place", async (open) => {
    const page = await open(desk, {
      hash: "#720-06-12T20:00;40.5N,20.9W",
      session: await session({ player: true }),
    });
    await page.until("the place is theirs", () =>
      /;13\.4N,8\.8E$/.test(decodeURIComponent(location.hash)),
    );
    await bounded(page, "place");
    await page.evaluate(() => void (location.hash = "#720-06-12T21:00;1N,2E"));
    await becomes(page, "720-06-12T21:00");
    await page.until("the place is theirs still", () =>
      /;13\.4N,8\.8E$/.test(decodeURIComponent(location.hash)),
    );
    assert.match(await textOf(page, "#shown-place"), /Ebb/);
    const controls = (await page.elements())
      .filter(({ focusable }) => focusable)
      .map(({ name }) => name);
    assert.ok(!controls.some((name) => /Latitude|Longitude|Map of/.test(name)), `${controls}`);
  });

  test("cannot creep away from their place in steps that do not show", async (open) => {
    const page = await open(desk, { hash: "", session: await session({ player: true }) });
    for (const clock of ["20:00", "21:00"]) {
      await page.evaluate(
        (clock) => void (location.hash = `#720-06-12T${clock};13.4000005N,8.8E`),
        clock,
      );
      await page.until(
        "the place is theirs to the last digit",
        (clock) => decodeURIComponent(location.hash) === `#720-06-12T${clock};13.4N,8.8E`,
        clock,
      );
    }
  });

  test("see sun and moon by day, and nothing else of the sky", async (open) => {
    const day = { from: "720-08-28T14:00", to: "720-08-28T22:00" };
    const page = await open(desk, {
      hash: "",
      session: { ...ebb, ...day, place: "Ebb", player: true },
    });
    /** How many of the marks are drawn, and how many names of them are seen. */
    const seen = async (moment, isMeant) => {
      await page.evaluate((moment) => void (location.hash = `#${moment}`), moment);
      await restsAt(page, moment.slice(-5));
      const { marks } = (await engine()).marks("star-map", { moment, ...ebb }).value;
      return page.evaluate(
        (marks) => {
          const drawn = [...document.querySelectorAll("#star-map .sheet *")].filter(
            (one) => getComputedStyle(one).display !== "none",
          );
          const points = drawn
            .filter(({ localName }) => localName === "circle")
            .map((circle) => [circle.cx.baseVal.value, circle.cy.baseVal.value]);
          const texts = drawn
            .filter(({ localName }) => localName === "text")
            .map(({ textContent }) => textContent.trim().toLowerCase());
          const isDrawn = ([x, y]) =>
            points.some((point) => Math.hypot(point[0] - x, point[1] - y) < 0.01);
          return {
            dots: marks.filter(({ dots: [dot] }) => dot && isDrawn(dot)).length,
            names: marks.filter(({ name }) => texts.includes(name.toLowerCase())).length,
          };
        },
        marks.filter((mark) => isMeant(mark)),
      );
    };
    const isSunOrMoon = ({ kind, name }) => kind === "body" && /Thessil|Ivro/.test(name);
    const isOther = (mark) => mark.kind !== "sign_boundary" && !isSunOrMoon(mark);
    assert.deepEqual(await seen(day.from, isOther), { dots: 0, names: 0 });
    assert.deepEqual(await seen(day.from, isSunOrMoon), { dots: 2, names: 1 });
    await (await page.select("#star-map")).focus();
    const told = new Set();
    for (const key of ["ArrowRight", "ArrowUp", "ArrowLeft", "ArrowDown", "ArrowRight"]) {
      await page.hands.key(key);
      told.add((await textOf(page, "#spoken-mark")).split(",")[0]);
    }
    assert.deepEqual([...told].sort(), ["Ivro", "Thessil"]);
    const rows = await textOf(page, "#positions tbody");
    assert.doesNotMatch(rows, /Bralo|Dunmor|Galvi|Pallox/);
    const night = await seen(day.to, isOther);
    assert.ok(night.dots > 100 && night.names > 50, JSON.stringify(night));
  });

  test("see no position below the horizon, at any hour of their night", async (open) => {
    const page = await open(desk, { hash: "", session: await session({ player: true }) });
    const sky = await engine();
    let risen = 0;
    let hidden = 0;
    for (let hour = 18; hour <= 26; ++hour) {
      const moment = `720-06-${hour < 24 ? 12 : 13}T${String(hour % 24).padStart(2, "0")}:00`;
      await page.evaluate((moment) => void (location.hash = `#${moment}`), moment);
      await restsAt(page, moment.slice(-5));
      const { positions } = sky.record("positions", { moment, ...ebb }).value;
      const rows = await page.evaluate(() =>
        [...document.querySelectorAll("#positions tbody tr")].map((row) =>
          row.cells[0].textContent.trim().toLowerCase(),
        ),
      );
      for (const { body, altitude_degrees: altitude } of positions) {
        if (altitude < 0) {
          assert.ok(!rows.includes(body), `${body} at ${altitude} degrees, ${moment}`);
          ++hidden;
        }
        if (rows.includes(body)) ++risen;
      }
    }
    assert.ok(risen > 0 && hidden > 0, `${risen} seen, ${hidden} hidden`);
  });
});
