// What Save SVG writes is the document, to the byte.

import assert from "node:assert/strict";

import { desk, engine, pageTests, phone, show } from "./sky_page.mjs";

const sky = { moment: "720-06-12T22:30", lat: "40.5N", long: "20.9W" };

pageTests("Save SVG", (test) => {
  for (const size of [phone, desk]) {
    for (const [tab, document] of [
      ["Star map", "star-map"],
      ["Horoscope", "horoscope"],
    ]) {
      test(`writes the ${tab.toLowerCase()} as the document is, at ${size.width} pixels`, async (open) => {
        const { value } = (await engine()).document(document, sky);
        const page = await open({ ...size, dark: true });
        await show(page, tab);
        const saved = await page.download(async () =>
          (await page.find("button", "Save SVG")).press(),
        );
        assert.match(saved.name, /^[^/]+\.svg$/);
        assert.equal(saved.bytes.toString("utf8"), value);
      });
    }
  }
});
