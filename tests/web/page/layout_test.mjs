// Nothing sticks out, is cut or lies under something else, in any view at any size.

import assert from "node:assert/strict";

import { layoutFaults } from "./layout.mjs";
import { pageTests, show, sizes, tabs } from "./sky_page.mjs";

pageTests("the page's layout", (test) => {
  for (const size of [...sizes, { ...sizes[0], forcedColours: true }]) {
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
      assert.equal(faults.join("\n"), "");
    });
  }
});
