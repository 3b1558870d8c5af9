// What axe-core finds fault with, in every view, light and dark, by finger and by mouse.

import assert from "node:assert/strict";

import { axeFaults } from "./axe.mjs";
import { desk, openInputs, pageTests, phone, show, tabs } from "./sky_page.mjs";

pageTests("the page is accessible", (test) => {
  for (const size of [phone, desk]) {
    for (const dark of [false, true]) {
      const words = `${size.width} × ${size.height}, ${dark ? "dark" : "light"}`;
      test(`in every view at ${words}`, async (open) => {
        const page = await open({ ...size, dark, still: true });
        const faults = [];
        for (const tab of tabs) {
          await show(page, tab);
          for (const fault of await axeFaults(page)) faults.push(`${tab}: ${fault}`);
        }
        assert.equal(faults.join("\n"), "");
      });
    }
  }

  for (const dark of [false, true]) {
    const faultsOf = async (page) => (await axeFaults(page)).join("\n");

    test(`with the sheet of its inputs open and what cannot be read told, ${dark ? "dark" : "light"}`, async (open) => {
      const page = await open({ ...phone, dark, still: true });
      await openInputs(page);
      assert.equal(await faultsOf(page), "");
      await (await page.find("textbox", "Latitude")).write("north");
      await page.hands.key("Enter");
      await page.until(
        "the error is told",
        () => !document.querySelector("#latitude-error").hidden,
      );
      assert.equal(await faultsOf(page), "");
    });

    test(`with a notice, an answer, an enlarged chart and help, ${dark ? "dark" : "light"}`, async (open) => {
      const page = await open({ ...desk, dark, still: true });
      await page.evaluate(() => void (location.hash = "soon"));
      await page.until("the page says so", () => !document.querySelector("#notice").hidden);
      await (await page.select("#help summary")).press();
      await (await page.select("#star-map")).focus();
      await page.hands.key("+");
      await page.hands.key("ArrowRight");
      await page.until(
        "a mark answers",
        () => !document.querySelector("#star-map-read-out").hidden,
      );
      assert.equal(await faultsOf(page), "");
    });
  }
});
