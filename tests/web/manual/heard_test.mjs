// The manual as it is heard: every page by the tree that the browser hands to screen readers.

import assert from "node:assert/strict";
import { mkdtempSync, readdirSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { basename, join } from "node:path";
import { after, before, describe, it } from "node:test";
import { fileURLToPath, pathToFileURL } from "node:url";

import { Chromium } from "../browser/chromium.mjs";
import { faultsOfHearing, unnamedKeys } from "./hearing.mjs";
import { allOf, spokenTree, wordsOf } from "./spoken.mjs";

const folder = fileURLToPath(new URL("../../../docs/manual", import.meta.url));
const pages = readdirSync(folder).filter((name) => name.endsWith(".html"));
const view = { width: 1200, height: 800 };

const wrongPage = `<!DOCTYPE html><html lang="en"><title>Wrong</title>
<main><h1>Wrong</h1><figure><img src="a.png" alt="A chart"><figcaption>A chart</figcaption></figure>
<p>Choose View ▸ Live, hold ⌥, see <a href="#x">here</a>. All are in OST.</p><p><kbd>Ctrl</kbd>+<kbd>-</kbd></p>
<pre tabindex="0">text</pre>
<table><tr><th scope="col">key</th><th scope="col">what it does</th></tr>
<tr><td>F1</td><td></td></tr></table></main>`;

describe("the manual, heard", () => {
  let browser;
  const led = new Map(); // to which pages, by the name of a link
  before(async () => {
    browser = await Chromium.start();
  });
  after(() => browser?.close());

  const open = async (path) => {
    const page = await browser.open(pathToFileURL(path).href, view);
    await page.painted();
    return page;
  };

  for (const name of pages) {
    it(`${name} is understood without being seen`, async () => {
      const page = await open(join(folder, name));
      const tree = await spokenTree(page);
      const faults = [...faultsOfHearing(tree), ...(await page.evaluate(unnamedKeys))];
      const [title] = allOf(tree, "heading").map(wordsOf);
      if (!tree.name.startsWith(title)) faults.push(`${tree.name} is headed ${title}`);
      for (const { name, address } of allOf(tree, "main").flatMap((main) => allOf(main, "link")))
        led.set(name, (led.get(name) ?? new Set()).add(basename(new URL(address).pathname)));
      await browser.closePages();
      assert.equal(faults.join("\n"), "");
    });
  }

  it("has links of one name that lead to one page", () => {
    assert.ok(led.size > 60, `${led.size}`);
    const several = [...led].filter(([, addresses]) => addresses.size > 1);
    assert.deepEqual(several, []);
  });

  it("is judged by what finds a page that is wrong", async () => {
    const own = mkdtempSync(join(tmpdir(), "veyruna-heard-"));
    try {
      const file = join(own, "wrong.html");
      writeFileSync(file, wrongPage);
      const page = await open(file);
      const found = faultsOfHearing(await spokenTree(page));
      found.push(...(await page.evaluate(unnamedKeys)));
      for (const words of [
        'the picture "A chart" is not told',
        '"A chart" is said twice',
        'no head before "F1, "',
        'a cell of "F1"',
        'Tab stops at "text"',
        'the link "here"',
        '"▸" in',
        '"⌥" in',
        "OST is not said in full",
        "the key - in",
      ]) {
        const isFound = found.some((fault) => fault.includes(words));
        assert.ok(isFound, `nothing is said of ${words}:\n${found.join("\n")}`);
      }
      await browser.closePages();
    } finally {
      rmSync(own, { recursive: true, force: true });
    }
  });
});
