// What axe-core finds fault with, in every view, light and dark, by finger and by mouse.

import assert from "node:assert/strict";

import { axeFaults } from "./axe.mjs";
import { desk, pageTests, phone, show, tabs } from "./sky_page.mjs";

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
});
