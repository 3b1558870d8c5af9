// The address carries the moment and the place, there and back.

import assert from "node:assert/strict";

import { addressOf, desk, evening, pageTests, phone, textOf } from "./sky_page.mjs";

const shown = async (page) => [
  await textOf(page, "#shown-date"),
  (await textOf(page, "#shown-clock")).slice(0, 5),
  await textOf(page, "#shown-place"),
];

const notice = (page) =>
  page.until("the page says so", () => {
    const notice = document.querySelector("#notice");
    return notice.checkVisibility() && document.querySelector("#notice-text").textContent;
  });

pageTests("the address", (test) => {
  for (const size of [phone, desk]) {
    test(`opens its moment and place at ${size.width} pixels`, async (open) => {
      const page = await open(size, { hash: "#1024-02-03T05:15;12.5S,33.25E" });
      const [date, clock, place] = await shown(page);
      assert.match(date, /^3 \w+ 1024$/);
      assert.equal(clock, "05:15");
      assert.match(place, /12\.50?°\s*S\s+33\.25°\s*E/);
      assert.equal(await addressOf(page), "1024-02-03T05:15;12.5S,33.25E");
    });
  }

  test("is the same sky when it is opened again", async (open) => {
    const page = await open(desk);
    await (await page.find("button", "A day later")).press();
    await page.until("the address follows", () => location.hash.includes("-06-13"));
    const chart = () => document.querySelector("#star-map").innerHTML;
    const before = [await page.evaluate(chart), ...(await shown(page))];
    const again = await open(desk, { hash: await page.evaluate(() => location.hash) });
    assert.deepEqual([await again.evaluate(chart), ...(await shown(again))], before);
  });

  test("is followed when it changes, and by going back", async (open) => {
    const page = await open(desk);
    await page.evaluate(() => void (location.hash = "#721-01-02T03:04;10N,20E"));
    await page.until(
      "it is followed",
      () => document.querySelector("#shown-clock").textContent.slice(0, 5) === "03:04",
    );
    await page.evaluate(() => history.back());
    await page.until(
      "it goes back",
      () => document.querySelector("#shown-clock").textContent.slice(0, 5) === "22:30",
    );
    assert.equal(`#${await addressOf(page)}`, evening);
  });

  test("keeps the place where it has only a moment, and the other way round", async (open) => {
    const page = await open(desk);
    await page.evaluate(() => void (location.hash = "#721-01-02T03:04"));
    await page.until("it is whole again", () => location.hash === "#721-01-02T03:04;40.5N,20.9W");
    await page.evaluate(() => void (location.hash = "#;10N,20E"));
    await page.until("it is whole again", () => location.hash === "#721-01-02T03:04;10N,20E");
  });

  test("is written again where someone empties it", async (open) => {
    const page = await open(desk);
    await page.evaluate(() => void (location.hash = ""));
    await page.until("it is there", (evening) => location.hash === evening, evening);
  });

  for (const nonsense of [
    "soon",
    "720-13-01T00:00;40.5N,20.9W",
    "720-06-31T00:00;40.5N,20.9W",
    "720-06-12T24:01;40.5N,20.9W",
    "720-06-12T22:30;91N,20.9W",
    "720-06-12T22:30;40.5N,200W",
    "720-06-12T22:30;40.5N",
    "@NaN;0,0",
    "@1e300;0,0",
    "%",
    "<img src=x onerror=alert(1)>;0,0",
  ]) {
    test(`stays where it is told "${nonsense}"`, async (open) => {
      const page = await open(desk);
      const before = await shown(page);
      await page.evaluate((hash) => void (location.hash = hash), nonsense);
      const told = await notice(page);
      assert.match(told, /address/i);
      assert.deepEqual(await shown(page), before);
      await page.until(
        "the address is that of the sky",
        (evening) => location.hash === evening,
        evening,
      );
    });

    test(`opens all the same at "${nonsense}"`, async (open) => {
      const page = await open(desk, { hash: `#${nonsense}` });
      await notice(page);
      assert.match((await shown(page))[1], /^\d\d:\d\d$/);
    });
  }
});
