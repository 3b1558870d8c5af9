// Light and dark: as the system has it, until a person says otherwise.

import assert from "node:assert/strict";

import { desk, pageTests } from "./sky_page.mjs";

/** How bright the page's ground is, from 0 to 1. */
const brightness = (page) =>
  page.evaluate(() => {
    const [red, green, blue] = getComputedStyle(document.body)
      .backgroundColor.match(/[\d.]+/g)
      .map(Number);
    return (0.2126 * red + 0.7152 * green + 0.0722 * blue) / 255;
  });

pageTests("light and dark", (test) => {
  for (const dark of [false, true]) {
    test(`is ${dark ? "dark" : "light"} where the system is, and the other at a press`, async (open) => {
      const page = await open({ ...desk, dark });
      const isDark = async () => (await brightness(page)) < 0.4;
      assert.equal(await isDark(), dark);
      const look = await page.select("#look");
      const pressed = () => look.evaluate((button) => button.getAttribute("aria-pressed"));
      assert.equal(await pressed(), String(dark));
      await look.press();
      await page.painted();
      assert.equal(await isDark(), !dark);
      assert.equal(await pressed(), String(!dark));
      await look.press();
      await page.painted();
      assert.equal(await isDark(), dark);
    });
  }

  test("follows the system while the page is open", async (open) => {
    const page = await open(desk);
    await page.see({ ...desk, dark: true });
    await page.painted();
    assert.ok((await brightness(page)) < 0.4);
  });
});
