// Nothing sticks out, is cut or lies under something else, in any view at any size.

import assert from "node:assert/strict";

import { layoutFaults } from "./layout.mjs";
import { pageTests, restsAt, show, sizes, tabs, textOf } from "./sky_page.mjs";

/** A moment at which most bodies stand in the sign with the longest name. */
const longNames = "#719-05-21T12:00;40.5N,20.9W";

/** The least width at which all stands side by side. */
const narrowDesk = { width: 1056, height: 700 };

pageTests("the page's layout", (test) => {
  for (const size of [...sizes, narrowDesk, { ...sizes[0], forcedColours: true }]) {
    const colours = size.forcedColours ? " in colours of the device" : "";
    test(`fits into ${size.width} × ${size.height}${colours}`, async (open) => {
      const page = await open(size);
      const faults = [];
      const judge = async (where) => {
        for (const fault of await layoutFaults(page)) faults.push(`${where}: ${fault}`);
      };
      for (const tab of tabs) {
        await show(page, tab);
        await judge(tab);
      }
      for (const table of ["Monthly", "Daily", "Yearly"]) {
        await (await page.find("radio", table)).press();
        await page.painted();
        await judge(table);
      }
      await show(page, "Star map");
      await page.evaluate((hash) => void (location.hash = hash), longNames);
      await restsAt(page, "12:00");
      const signs = await textOf(page, "#positions tbody");
      assert.equal(signs.split("Istramondel").length, 5);
      await judge("the longest names");
      assert.equal(faults.join("\n"), "");
    });
  }
});
