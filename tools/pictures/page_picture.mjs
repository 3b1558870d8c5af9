// page_picture.mjs PAGE FILE: the page on a phone, on the evening that the manual tells of, as a PNG.

import { writeFileSync } from "node:fs";
import { resolve } from "node:path";
import { pathToFileURL } from "node:url";

import { Chromium } from "../../tests/web/browser/chromium.mjs";

const [, , file, picture] = process.argv;
const address = `${pathToFileURL(resolve(file)).href}#720-06-12T22:30;40.5N,20.9W`;
const phone = { width: 390, height: 844, scale: 2, touch: true, still: true };

const browser = await Chromium.start();
try {
  const page = await browser.open(address, phone);
  await page.until("the positions are there", () => document.querySelector("#positions tbody tr"));
  await page.painted();
  writeFileSync(picture, await page.picture());
} finally {
  await browser.close();
}
