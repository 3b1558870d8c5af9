// The page that `veyruna page` writes is the one that was asked for.

import assert from "node:assert/strict";

import { addressOf, desk, pageTests, phone, restsAt, textOf } from "./sky_page.mjs";

const shownTabs = (page) =>
  page.evaluate(() =>
    [...document.querySelectorAll("[role=tab]")]
      .filter((tab) => tab.checkVisibility())
      .map((tab) => tab.textContent.trim()),
  );

pageTests("A page that the command has written", (test) => {
  test("for an evening opens at its beginning and keeps to it", async (open) => {
    const evening = ["--from", "720-06-12T18:00", "--to", "720-06-13T02:00", "--location", "Ebb"];
    const title = ["--title", 'The </script> "night" at Ebb'];
    const page = await open(phone, { hash: "", session: [...evening, ...title] });
    await restsAt(page, "18:00");
    assert.equal(await textOf(page, "h1"), 'The </script> "night" at Ebb');
    assert.equal(await addressOf(page), "720-06-12T18:00;13.4N,8.8E");
    await page.evaluate(() => void (location.hash = "#721-01-01T00:00;13.4N,8.8E"));
    await restsAt(page, "02:00");
    assert.ok((await shownTabs(page)).includes("Horoscope"));
  });

  test("for players shows what eyes can see from their place", async (open) => {
    const evening = ["--from", "720-06-12T18:00", "--for", "1 day", "--lat", "40.5N"];
    const page = await open(desk, {
      hash: "#720-06-12T22:30;0N,0E",
      session: [...evening, "--long", "20.9W", "--player"],
    });
    await restsAt(page, "22:30");
    assert.equal(await addressOf(page), "720-06-12T22:30;40.5N,20.9W");
    assert.ok(!(await shownTabs(page)).includes("Horoscope"));
    const seen = await page.evaluate(() => document.querySelector("#positions tbody").textContent);
    assert.match(seen, /Ivro/);
    assert.doesNotMatch(seen, /Thessil|Galvi/);
  });

  test("for a moment opens there and is free to leave it", async (open) => {
    const moment = ["--year", "700", "--month", "Cendo", "--day", "3", "--hour", "21:15"];
    const page = await open(phone, { hash: "", session: [...moment, "--location", "Kessa"] });
    await restsAt(page, "21:15");
    assert.equal(await addressOf(page), "700-07-03T21:15;21N,5.1E");
    await page.evaluate(() => void (location.hash = "#1-01-01T06:00;90S,0E"));
    await restsAt(page, "06:00");
    assert.equal(await addressOf(page), "001-01-01T06:00;90S,0E");
  });
});
