// Time that moves: the bar of the day, steps, and playing, of which frames are counted and none timed.

import assert from "node:assert/strict";

import { until } from "../browser/patience.mjs";
import { desk, pageTests, phone, textOf } from "./sky_page.mjs";

const clock = async (page) => (await textOf(page, "#shown-clock")).slice(0, 5);
const minutes = (text) => Number(text.slice(0, 2)) * 60 + Number(text.slice(3, 5));

/** Watches `frames` frames in a row: how many charts were new, and the moments that were told with them. */
const watchFrames = (page, frames) =>
  page.evaluate(
    (frames) =>
      new Promise((done) => {
        let changes = 0;
        let drawn = 0;
        let before = "";
        const moments = [];
        const look = () => {
          const chart = document.querySelector("#star-map").innerHTML;
          if (chart !== before) ++changes;
          before = chart;
          const date = document.querySelector("#shown-date").textContent;
          moments.push(`${date} ${document.querySelector("#shown-clock").textContent.slice(0, 5)}`);
          if (++drawn < frames) requestAnimationFrame(look);
          else done({ changes, moments });
        };
        requestAnimationFrame(look);
      }),
    frames,
  );

const isPressed = (page, id) =>
  page.evaluate((id) => document.querySelector(id).getAttribute("aria-pressed") === "true", id);

/** Of "12 Felum 720 22:30": minutes since the year began; a year is twelve months of thirty days. */
async function momentsOf(page, lines) {
  const months = await page.evaluate(() =>
    [...document.querySelectorAll("#month option")].map((option) => option.textContent.trim()),
  );
  return lines.map((line) => {
    const [, day, month, year, time] = /^(\d+) (\w+) (\d+) (\d\d:\d\d)/.exec(line);
    return ((Number(year) * 12 + months.indexOf(month)) * 30 + Number(day)) * 1440 + minutes(time);
  });
}

const isSorted = (numbers) => numbers.every((number, at) => at === 0 || number >= numbers[at - 1]);

pageTests("time", (test) => {
  for (const size of [phone, desk]) {
    test(`is moved by the bar at ${size.width} pixels, the chart with it`, async (open) => {
      const page = await open(size);
      const { left, top, width, height } = await (await page.select("#hour-bar")).box();
      const at = (part) => ({ x: left + 12 + (width - 24) * part, y: top + height / 2 });
      const value = () => page.evaluate(() => Number(document.querySelector("#hour-bar").value));
      const charts = await page.evaluate(() => {
        globalThis.charts = new Set();
        new MutationObserver(() =>
          charts.add(document.querySelector("#star-map").innerHTML),
        ).observe(document.querySelector("#star-map"), {
          subtree: true,
          childList: true,
          characterData: true,
          attributes: true,
        });
        return charts.size;
      });
      assert.equal(charts, 0);
      const held = async () => {
        await page.painted();
        const [shown, set] = [minutes(await clock(page)), await value()];
        assert.ok(Math.abs(shown - set) <= 1, `the clock tells ${shown}, the bar ${set}`);
      };
      const from = at((await value()) / 1440);
      await (size.touch
        ? page.hands.swipe(from, at(0.25), held)
        : page.hands.drag(from, at(0.25), held));
      await page.painted();
      const set = await value();
      assert.ok(Math.abs(set - 360) < 60, `${set}`);
      assert.equal(minutes(await clock(page)), set);
      // A chart at least for every second of the twelve steps of the movement.
      assert.ok((await page.evaluate(() => charts.size)) >= 6);
    });
  }

  test("is moved by the bar's keys", async (open) => {
    const page = await open(desk);
    await (await page.select("#hour-bar")).focus();
    await page.hands.key("ArrowLeft");
    await page.until(
      "the clock follows",
      () => document.querySelector("#shown-clock").textContent.slice(0, 5) < "22:30",
    );
    await page.hands.key("Home");
    await page.until(
      "it goes to midnight",
      () => document.querySelector("#shown-clock").textContent.slice(0, 5) === "00:00",
    );
    assert.match(await textOf(page, "#shown-date"), /^12 /);
  });

  for (const size of [phone, desk]) {
    test(`plays at ${size.width} pixels, a chart a frame, and stops`, async (open) => {
      const page = await open(size);
      await (await page.find("button", "Play")).press();
      await until("it plays", () => isPressed(page, "#play"));
      const { changes, moments } = await watchFrames(page, 60);
      assert.ok(changes >= 55, `${changes} charts in 60 frames`);
      const told = await momentsOf(page, moments);
      assert.ok(isSorted(told) && told.at(-1) > told[0], `${moments[0]} to ${moments.at(-1)}`);
      await (await page.select("#play")).press();
      await until("it stops", async () => !(await isPressed(page, "#play")));
      await page.painted();
      assert.equal((await watchFrames(page, 20)).changes, 1);
      await page.until("the address follows", () => {
        const clock = document.querySelector("#shown-clock").textContent.slice(0, 5);
        return location.hash.split(/[T;]/)[1] === clock;
      });
    });
  }

  test("plays backwards", async (open) => {
    const page = await open(desk);
    await (await page.find("button", "Play backwards")).press();
    await until("it plays", () => isPressed(page, "#play-back"));
    const { moments } = await watchFrames(page, 60);
    const told = await momentsOf(page, moments);
    assert.ok(
      isSorted([...told].reverse()) && told.at(-1) < told[0],
      `${moments[0]} to ${moments.at(-1)}`,
    );
  });

  test("plays and pauses by the space bar, and steps by comma and full stop", async (open) => {
    const page = await open(desk);
    const before = await clock(page);
    await page.hands.key(".");
    await page.until(
      "a step later",
      (before) => document.querySelector("#shown-clock").textContent.slice(0, 5) !== before,
      before,
    );
    await page.hands.key(",");
    await page.until(
      "and back",
      (before) => document.querySelector("#shown-clock").textContent.slice(0, 5) === before,
      before,
    );
    await page.hands.key(" ");
    await until("it plays", () => isPressed(page, "#play"));
    await page.hands.key(" ");
    await until("it stops", async () => !(await isPressed(page, "#play")));
    await page.hands.key(" ", "Shift");
    await until("it plays backwards", () => isPressed(page, "#play-back"));
  });

  test("is stepped by as much as is chosen", async (open) => {
    const page = await open(desk);
    const paces = await page.evaluate(() =>
      [...document.querySelectorAll("#pace option")].map((option) => option.textContent.trim()),
    );
    assert.ok(paces.length >= 3, `${paces}`);
    const chart = () => document.querySelector("#star-map svg.sheet").innerHTML;
    const seen = new Set();
    for (const pace of paces.keys()) {
      await (await page.select("#pace")).focus();
      await page.hands.key(pace === 0 ? "Home" : "ArrowDown");
      await page.until(
        "it is chosen",
        (pace) => document.querySelector("#pace").selectedIndex === pace,
        pace,
      );
      const before = await page.evaluate(chart);
      await (await page.find("button", "A step later")).press();
      await page.until("it is later", `(before) => (${chart})() !== before`, before);
      seen.add(await page.evaluate(chart));
      await (await page.find("button", "A step earlier")).press();
      await page.until("it is as before", `(before) => (${chart})() === before`, before);
    }
    assert.equal(seen.size, paces.length);
  });
});
