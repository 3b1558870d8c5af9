// The manual as it is read: every page by a screen reader, on a narrow and a wide screen, light and dark, and
// on paper.

import assert from "node:assert/strict";
import { mkdtempSync, readdirSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, before, describe, it } from "node:test";
import { fileURLToPath, pathToFileURL } from "node:url";

import { Chromium } from "../browser/chromium.mjs";
import { axeFaults } from "../page/axe.mjs";
import { papers, readPaper } from "../page/paper.mjs";

const folder = fileURLToPath(new URL("../../../docs/manual", import.meta.url));
const pages = readdirSync(folder).filter((name) => name.endsWith(".html"));
const addressOf = (name) => pathToFileURL(join(folder, name)).href;

const narrow = { width: 400, height: 800, scale: 2, touch: true };
const wide = { width: 1200, height: 800 };

/** Runs in the page: what makes it scroll sideways, and what a reader of one column cannot get at. */
function faultsOfReading() {
  const faults = [];
  const root = document.documentElement;
  if (root.scrollWidth > root.clientWidth) {
    for (const one of document.querySelectorAll("body *")) {
      const { right } = one.getBoundingClientRect();
      const scrolled = one.parentElement.closest("pre");
      if (right > root.clientWidth + 0.5 && !scrolled)
        faults.push(`<${one.localName}> "${one.textContent.trim().slice(0, 40)}" ends at ${right}`);
    }
    faults.push(`the page is ${root.scrollWidth} wide in a view of ${root.clientWidth}`);
  }
  for (const pre of document.querySelectorAll("pre")) {
    if (pre.scrollWidth > pre.clientWidth && pre.tabIndex !== 0)
      faults.push(`"${pre.textContent.slice(0, 40)}" cannot be scrolled by keys`);
  }
  for (const image of document.images) {
    if (image.naturalWidth === 0) faults.push(`${image.getAttribute("src")} is not shown`);
    if (image.alt.trim().length < 10) faults.push(`${image.getAttribute("src")} is not described`);
  }
  const levels = [...document.querySelectorAll("h1, h2, h3, h4")].map((one) =>
    Number(one.localName[1]),
  );
  if (levels[0] !== 1 || levels.filter((level) => level === 1).length !== 1)
    faults.push("a page begins with its one first heading");
  levels.forEach((level, at) => {
    if (at > 0 && level > levels[at - 1] + 1) faults.push(`heading ${at + 1} leaves out a level`);
  });
  for (const table of document.querySelectorAll("table")) {
    const heads = [...table.querySelectorAll("th")];
    if (heads.length === 0 || heads.some((head) => !head.scope))
      faults.push(`the table "${table.textContent.trim().slice(0, 40)}" lacks heads`);
    if (!table.tHead)
      faults.push(
        `the table "${table.textContent.trim().slice(0, 40)}" has no head for a new sheet`,
      );
  }
  if (!document.documentElement.lang || !document.querySelector("main"))
    faults.push("language and main part are said");
  const [first] = document.querySelectorAll("a");
  if (!first?.hash || !document.querySelector(first.hash)?.matches("main"))
    faults.push("the first link leads to the text");
  return faults;
}

const wrongPage = `<!DOCTYPE html><title>Wrong</title>
<meta name="viewport" content="width=device-width, initial-scale=1">
<style>html { background: #222 } pre { overflow: auto } p { color: #333; width: 900px }</style>
<h1>Wrong</h1><h3>Too deep</h3><p>Wide and dark.</p><img src="none.png" alt="x">
<pre>${"wide ".repeat(200)}</pre><table><tr><td>no heads</table>`;

/** What is wrong with a page that is printed from a dark screen. */
async function faultsOnPaper(page) {
  const ends = await page.evaluate(() => {
    const texts = [...document.querySelectorAll("h1, main p, main td, main li")];
    return [texts[0], texts.at(-1)].map((one) => one.textContent.trim().split(/\s+/).at(-1));
  });
  const { text, ink } = readPaper(await page.print(papers.A4));
  const faults = ends
    .filter((word) => !text.includes(word))
    .map((word) => `"${word}" is not on paper`);
  if (text.includes("To the text")) faults.push("links for the screen are on paper");
  ink.forEach(({ share, atEdge }, at) => {
    if (atEdge) faults.push(`sheet ${at + 1} reaches the edge of the paper`);
    if (share > 0.75) faults.push(`sheet ${at + 1} is dark`);
  });
  return faults;
}

describe("the manual", () => {
  let browser;
  before(async () => {
    browser = await Chromium.start();
  });
  after(() => browser?.close());

  const open = async (name, view) => {
    const page = await browser.open(addressOf(name), view);
    await page.painted();
    return page;
  };

  it("has pages", () => assert.ok(pages.length > 15, `${pages}`));

  for (const name of pages) {
    it(`${name} is read at every width, light and dark, and on paper`, async () => {
      const page = await open(name, narrow);
      const faults = [];
      for (const view of [narrow, wide]) {
        for (const dark of [false, true]) {
          await page.see({ ...view, dark, still: true });
          await page.painted();
          const found = await page.evaluate(faultsOfReading);
          const words = `at ${view.width} pixels, ${dark ? "dark" : "light"}`;
          faults.push(...found.map((fault) => `${words}: ${fault}`));
        }
      }
      faults.push(...(await faultsOnPaper(page)), ...page.watch.messages, ...page.watch.requests);
      // Structure and colours are the same at every width.
      for (const dark of [false, true]) {
        await page.see({ ...narrow, dark, still: true });
        faults.push(...(await axeFaults(page)));
      }
      await browser.closePages();
      assert.equal(faults.join("\n"), "");
    });
  }

  it("leads past the links by one key", async () => {
    const page = await open("tables.html", wide);
    await page.hands.key("Tab");
    assert.equal(await page.evaluate(() => document.activeElement.className), "skip");
    assert.ok(await page.evaluate(() => document.activeElement.getBoundingClientRect().top >= 0));
    await page.hands.key("Enter");
    await page.until("the address leads to the text", () => location.hash === "#text");
    await browser.closePages();
  });

  it("is judged by what finds a page that is wrong", async () => {
    const own = mkdtempSync(join(tmpdir(), "veyruna-manual-"));
    try {
      const file = join(own, "wrong.html");
      writeFileSync(file, wrongPage);
      const page = await browser.open(pathToFileURL(file).href, narrow);
      const found = await page.evaluate(faultsOfReading);
      found.push(...(await faultsOnPaper(page)), ...(await axeFaults(page)));
      for (const words of [
        "the page is ",
        "cannot be scrolled by keys",
        "none.png is not shown",
        "none.png is not described",
        "leaves out a level",
        "lacks heads",
        "no head for a new sheet",
        "language and main part are said",
        "the first link leads to the text",
        "is dark",
        "color-contrast",
        "html-has-lang",
      ]) {
        const isFound = found.some((fault) => fault.includes(words));
        assert.ok(isFound, `nothing is said of "${words}":\n${found.join("\n")}`);
      }
      await browser.closePages();
    } finally {
      rmSync(own, { recursive: true, force: true });
    }
  });
});
