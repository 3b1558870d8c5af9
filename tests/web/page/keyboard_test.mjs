// Everything by keys alone: Tab comes by all that can be used, shows where it is and is caught nowhere.

import assert from "node:assert/strict";

import { walk } from "./focus_walk.mjs";
import { desk, pageTests, phone, show, tabs } from "./sky_page.mjs";

const focused = (page) => page.evaluate(() => document.activeElement.id);

pageTests("the keyboard", (test) => {
  for (const size of [phone, desk]) {
    for (const tab of tabs) {
      test(`walks through ${tab} at ${size.width} pixels, there and back`, async (open) => {
        const page = await open(size);
        await show(page, tab);
        const there = await walk(page);
        assert.equal(there.faults.join("\n"), "");
        assert.ok(there.steps.length > 10, `${there.steps}`);
        const back = await walk(page, { back: true });
        assert.equal(back.faults.join("\n"), "");
        assert.deepEqual([...back.steps].reverse(), there.steps);
      });
    }
  }

  test("goes from tab to tab by arrows", async (open) => {
    const page = await open(desk);
    await (await page.find("tab", "Star map")).focus();
    const shown = (tab) =>
      page.until(`${tab} is shown`, (tab) => !document.querySelector(`#view-${tab}`).hidden, tab);
    await page.hands.key("ArrowRight");
    await shown("horoscope");
    assert.equal(await focused(page), "tab-horoscope");
    await page.hands.key("End");
    await shown("tables");
    await page.hands.key("ArrowRight");
    await shown("star-map");
    await page.hands.key("ArrowLeft");
    await shown("tables");
    await page.hands.key("Home");
    await shown("star-map");
    assert.equal(await focused(page), "tab-star-map");
  });

  test("skips to the sky", async (open) => {
    const page = await open(desk);
    await page.hands.key("Tab");
    assert.equal(await focused(page), "skip");
    await page.hands.key("Enter");
    await page.until("the sky has the focus", () => document.activeElement.id === "views");
    // The address belongs to the sky, also when a link within the page is followed.
    await page.painted();
    await page.until("the address is the sky's", () =>
      location.hash.startsWith("#720-06-12T22:30;"),
    );
    assert.ok(await page.evaluate(() => document.querySelector("#notice").hidden));
  });

  test("opens the sheet of the inputs and leaves it by Esc, back where it was", async (open) => {
    const page = await open(phone);
    await (await page.select("#open-inputs")).focus();
    await page.hands.key("Enter");
    const isOpen = () =>
      document.querySelector("#year").checkVisibility({ visibilityProperty: true });
    await page.until("the sheet is open", isOpen);
    await page.until("the focus is in it", () =>
      document.querySelector("#inputs").contains(document.activeElement),
    );
    await page.hands.key("Escape");
    await page.until("it is closed", `() => !(${isOpen})()`);
    await page.until("the focus is back", () => document.activeElement.id === "open-inputs");
  });

  test("lets single keys be switched off where nothing is played or enlarged by them", async (open) => {
    const page = await open(desk);
    const clock = () => document.querySelector("#shown-clock").textContent;
    const before = await page.evaluate(clock);
    await (await page.select("#help summary")).press();
    await (await page.find("checkbox", /These keys work everywhere/)).press();
    await (await page.find("tab", "Star map")).focus();
    await page.hands.key(".");
    await page.painted();
    assert.equal(await page.evaluate(clock), before);
    await (await page.select("#star-map")).focus();
    await page.hands.key(".");
    await page.until("on a chart they work still", `(before) => (${clock})() !== before`, before);
  });
});
