// Every part of the page that can be used, and every column, has its name in the manual's page about it.

import assert from "node:assert/strict";
import { readFileSync } from "node:fs";

import { desk, openInputs, pageTests, phone, show, tabs } from "./sky_page.mjs";

const manual = readFileSync(new URL("../../../docs/manual/players.html", import.meta.url), "utf8")
  .replaceAll(/<[^>]*>/g, " ")
  .replaceAll("&amp;", "&")
  .replaceAll(/\s+/g, " ");

const roles = [
  ...["application", "button", "checkbox", "columnheader", "combobox", "DisclosureTriangle"],
  ...["radio", "region", "slider", "tab", "tablist", "textbox", "spinbutton"],
];

/** Without what differs from moment to moment and place to place; empty for what is nothing but that. */
function fixed(name) {
  const plain = name.replaceAll(/, (Wendmark|Ebb)$/g, "").trim();
  return /\d/.test(plain) ? plain.replace(/^(Full moon|New moon)?.*$/, "$1") : plain;
}

pageTests("the manual has the page", (test) => {
  for (const size of [phone, desk]) {
    test(`at ${size.width} pixels`, async (open) => {
      const page = await open({ ...size, still: true });
      const names = new Set();
      const look = async () => {
        for (const { role, name } of await page.elements())
          if (roles.includes(role) && fixed(name) !== "") names.add(fixed(name));
      };
      for (const tab of tabs) {
        await show(page, tab);
        await look();
      }
      await openInputs(page);
      await look();
      assert.ok(names.size > 30, `${[...names]}`);
      const missing = [...names].filter((name) => !manual.includes(name));
      assert.deepEqual(missing, []);
    });
  }
});
