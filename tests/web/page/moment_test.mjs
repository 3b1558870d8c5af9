// The moment as it is typed, chosen and stepped, and what cannot be read.

import assert from "node:assert/strict";

import {
  addressOf,
  desk,
  engine,
  openInputs,
  pageTests,
  phone,
  show,
  textOf,
} from "./sky_page.mjs";

/** Types into one field and confirms it, as a person does. */
async function enter(page, role, name, text) {
  await openInputs(page);
  const field = await page.find(role, name);
  await field.write(text);
  await page.hands.key("Enter");
  return field;
}

const becomes = (page, moment) =>
  page.until(
    `the moment is ${moment}`,
    (moment) => decodeURIComponent(location.hash).startsWith(`#${moment};`),
    moment,
  );

pageTests("the moment", (test) => {
  for (const size of [phone, desk]) {
    test(`is typed and chosen at ${size.width} pixels`, async (open) => {
      const page = await open(size);
      await enter(page, "textbox", "Year", "1024");
      await becomes(page, "1024-06-12T22:30");
      await enter(page, "textbox", "Clock", "5:07");
      await becomes(page, "1024-06-12T05:07");
      const month = await page.select("#month");
      await month.focus();
      await page.hands.key("ArrowDown");
      await becomes(page, "1024-07-12T05:07");
      await (await page.select("#day")).focus();
      await page.hands.key("ArrowUp");
      await becomes(page, "1024-07-11T05:07");
      assert.match(await textOf(page, "#shown-date"), /^11 \w+ 1024$/);
      assert.equal((await textOf(page, "#shown-clock")).slice(0, 5), "05:07");
    });
  }

  test("is stepped by buttons over the ends of days, months and years", async (open) => {
    const page = await open(desk, { hash: "#720-12-30T23:30;40.5N,20.9W" });
    for (const [button, moment] of [
      ["An hour later", "721-01-01T00:30"],
      ["An hour earlier", "720-12-30T23:30"],
      ["A day later", "721-01-01T23:30"],
      ["A day earlier", "720-12-30T23:30"],
      ["A month later", "721-01-30T23:30"],
      ["A month earlier", "720-12-30T23:30"],
      ["A year later", "721-12-30T23:30"],
      ["A year earlier", "720-12-30T23:30"],
    ]) {
      await (await page.find("button", button)).press();
      await becomes(page, moment);
    }
  });

  test("is that of the place where its clock is asked for", async (open) => {
    const page = await open(desk);
    const clock = () => page.evaluate(() => document.querySelector("#clock").value);
    assert.equal(await clock(), "22:30");
    await (await page.find("checkbox", /Clock and date of the place/)).press();
    await page.until(
      "the clock is another",
      () => document.querySelector("#clock").value !== "22:30",
    );
    const { local } = (await engine()).moment({
      moment: "720-06-12T22:30",
      lat: "40.5N",
      long: "20.9W",
    }).value;
    assert.equal(`720-06-12T${await clock()}`, local.date);
    assert.equal(await addressOf(page), "720-06-12T22:30;40.5N,20.9W");
  });

  for (const [name, typed, quoted] of [
    ["Year", "soon", /soon/],
    ["Year", "", /"-06-12T22:30"/],
    ["Year", "7.5", /7\.5/],
    ["Year", "999999999", /999999999/],
    ["Year", "<b>1</b>", /<b>1<\/b>/],
    ["Clock", "25:00", /25:00/],
    ["Clock", "noon", /noon/],
    ["Clock", "", /"720-06-12T"/],
    ["Clock", "12:61", /12:61/],
    ["Clock", "-1", /-1/],
  ]) {
    test(`stays where ${name} is "${typed}"`, async (open) => {
      const page = await open(desk);
      const before = await page.evaluate(() => document.querySelector("#star-map").innerHTML);
      const field = await enter(page, "textbox", name, typed);
      const error = await page.until("the error is told", () => {
        const error = document.querySelector("#moment-error");
        return error.checkVisibility() && error.textContent;
      });
      assert.match(error, quoted);
      assert.match(error, /^"/);
      assert.equal(await field.evaluate((input) => input.getAttribute("aria-invalid")), "true");
      assert.equal(await addressOf(page), "720-06-12T22:30;40.5N,20.9W");
      assert.equal(
        await page.evaluate(() => document.querySelector("#star-map").innerHTML),
        before,
      );
      await enter(page, "textbox", name, name === "Year" ? "721" : "23:30");
      await page.until(
        "the error is gone",
        () => !document.querySelector("#moment-error").checkVisibility(),
      );
    });
  }

  test("has its evening on the first day, before whose midnight there is no clock", async (open) => {
    const page = await open(desk, { hash: "#1-01-01T08:00;40.5N,20.9W" });
    await show(page, "Tonight");
    const clocks = await page.evaluate(() =>
      [...document.querySelectorAll("#events time")].map((time) => time.textContent),
    );
    assert.ok(clocks.includes(""), "something is before the first midnight");
    assert.ok(clocks.some((clock) => /^\d\d:\d\d$/.test(clock)));
  });
});
