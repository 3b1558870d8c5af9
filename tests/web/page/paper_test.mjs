// On paper: what was on the screen, on clean pages of either size.

import assert from "node:assert/strict";

import { contrastFaults } from "./axe.mjs";
import { papers, readPaper } from "./paper.mjs";
import { desk, pageTests, phone, show, tabs, textOf } from "./sky_page.mjs";

pageTests("paper", (test) => {
  for (const [paper, size] of Object.entries(papers)) {
    for (const view of [phone, { ...desk, dark: true }]) {
      for (const tab of tabs) {
        test(`of ${paper} has ${tab} as it was shown at ${view.width} pixels`, async (open) => {
          const page = await open(view);
          await show(page, tab);
          const { pages, text, ink } = readPaper(await page.print(size));
          assert.ok(pages <= 2, `${pages} pages`);
          assert.match(text, new RegExp(await textOf(page, "#shown-date")));
          assert.match(text, /22:30/);
          assert.match(text, /Wendmark|40\.50?°/);
          // Ink is dear: paper stays white, whatever the screen was, and its edges free.
          for (const { share, atEdge } of ink) {
            assert.ok(share > 0.005 && share < 0.5, `${share} of the paper is inked`);
            assert.ok(!atEdge, "there is ink at the edge");
          }
        });
      }
    }
  }

  test("is read as well where the screen was dark", async (open) => {
    const page = await open({ ...desk, dark: true });
    for (const tab of tabs) {
      await page.see({ ...desk, dark: true });
      await show(page, tab);
      await page.see({ ...desk, dark: true, paper: true });
      assert.equal((await contrastFaults(page)).join("\n"), "", tab);
    }
  });
});
