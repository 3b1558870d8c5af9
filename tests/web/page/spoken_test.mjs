// What a screen reader is told: headings, the moment when it changes, and for each chart a description and
// a table or text beside it.

import assert from "node:assert/strict";

import { desk, engine, pageTests, phone, show, textOf } from "./sky_page.mjs";

const sky = { moment: "720-06-12T22:30", lat: "40.5N", long: "20.9W" };

/** Counts what the live region says from now on. */
const listen = (page) =>
  page.evaluate(() => {
    globalThis.said = [];
    const told = document.querySelector("#told");
    new MutationObserver(() => said.push(told.textContent)).observe(told, {
      childList: true,
      characterData: true,
      subtree: true,
    });
  });
const said = (page) => page.evaluate(() => said);

pageTests("a screen reader", (test) => {
  for (const size of [phone, desk]) {
    test(`finds headings in their order at ${size.width} pixels`, async (open) => {
      const page = await open(size);
      for (const tab of ["Star map", "Horoscope", "Tonight", "Tables"]) {
        await show(page, tab);
        const levels = await page.evaluate(() =>
          [...document.querySelectorAll("h1, h2, h3, h4")]
            .filter((heading) => heading.checkVisibility({ visibilityProperty: true }))
            .map((heading) => Number(heading.localName[1])),
        );
        assert.equal(levels.filter((level) => level === 1).length, 1);
        assert.equal(levels[0], 1);
        assert.ok(
          levels.every((level, at) => at === 0 || level <= levels[at - 1] + 1),
          `${levels}`,
        );
        assert.ok(levels.length >= 2, tab);
      }
    });
  }

  test("is told of each moment that is come to, once", async (open) => {
    const page = await open(desk);
    const region = await page.select("#told");
    assert.equal(await region.evaluate((told) => told.getAttribute("role")), "status");
    await listen(page);
    await (await page.find("button", "A day later")).press();
    await page.until("the moment is told", () => said.some((words) => words.includes("13 ")));
    const words = (await said(page)).at(-1);
    assert.match(words, /13 \w+ 720/);
    assert.match(words, /22:30/);
    assert.match(words, /Wendmark/);
    assert.equal((await said(page)).length, 1);
  });

  test("is left in peace while time plays, and told when it stops", async (open) => {
    const page = await open(desk);
    await listen(page);
    await page.hands.key(" ");
    await page.evaluate(
      () =>
        new Promise((done) => {
          let frames = 0;
          const count = () => (++frames < 60 ? requestAnimationFrame(count) : done());
          requestAnimationFrame(count);
        }),
    );
    assert.deepEqual(await said(page), []);
    await page.hands.key(" ");
    await page.until("the moment is told", () => said.length === 1);
  });

  for (const [tab, chart] of [
    ["Star map", "star-map"],
    ["Horoscope", "horoscope"],
  ]) {
    test(`has a name, a description and text beside the ${tab}`, async (open) => {
      const page = await open(desk);
      await show(page, tab);
      const all = await page.elements();
      const summary = (await engine()).marks(chart, sky).value.summary;
      const drawing = all.find(({ role, name }) => role === "application" && name === tab);
      assert.equal(drawing?.description, summary);
      assert.ok(all.some(({ role, name }) => role === "tabpanel" && name === tab));
      // The drawing itself is letters and dots in no order.
      const texts = await page.evaluate(
        (chart) => document.querySelector(`#${chart} svg.sheet`).getAttribute("aria-hidden"),
        chart,
      );
      assert.equal(texts, "true");
    });
  }

  test("has the positions as a table with headings, as the engine has them", async (open) => {
    const page = await open(desk);
    const positions = (await engine()).record("positions", sky).value.positions;
    const table = await page.evaluate(() =>
      [...document.querySelectorAll("#positions tr")].map((row) =>
        [...row.cells].map((cell) => cell.textContent.trim()),
      ),
    );
    const headings = await page.evaluate(() =>
      [...document.querySelectorAll("#positions thead th")].map((cell) => cell.scope),
    );
    assert.ok(headings.length >= 3 && headings.every((scope) => scope === "col"));
    for (const { body } of positions) {
      assert.ok(
        table.some(([name]) => name.toLowerCase() === body),
        body,
      );
    }
  });

  test("has the interpretation as text that belongs to the moment", async (open) => {
    const page = await open(desk);
    await show(page, "Horoscope");
    const before = await textOf(page, "#interpretation");
    assert.ok(before.length > 200, before);
    await (await page.find("button", "A month later")).press();
    await page.until(
      "it is another",
      (before) => document.querySelector("#interpretation").textContent !== before,
      before,
    );
  });

  test("hears an error as an alert", async (open) => {
    const page = await open(desk);
    await page.evaluate(() => void (location.hash = "soon"));
    await page.until("the page says so", () => document.querySelector("#notice").checkVisibility());
    const all = await page.elements();
    assert.ok(all.some(({ role }) => role === "alert"));
    await (await page.select("#notice-close")).press();
    await page.until("it is gone", () => !document.querySelector("#notice").checkVisibility());
  });
});
