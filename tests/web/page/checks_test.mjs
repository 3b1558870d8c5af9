// What judges the page, tried on a small page of which it is known what is wrong.

import assert from "node:assert/strict";
import { after, afterEach, before, describe, it } from "node:test";

import { Chromium } from "../browser/chromium.mjs";
import { axeFaults } from "./axe.mjs";
import { walk } from "./focus_walk.mjs";
import { layoutFaults } from "./layout.mjs";
import { papers, readPaper } from "./paper.mjs";

const sample = new URL("../browser/sample.html", import.meta.url).href;
const view = { width: 390, height: 844 };

/** Adds elements to the page. */
const add = (html) =>
  `() => void document.querySelector("main").insertAdjacentHTML("beforeend", ${JSON.stringify(html)})`;
/** Adds rules to its style. */
const style = (css) => `() => void document.querySelector("style").append(${JSON.stringify(css)})`;

const layoutBreaks = {
  "the document is": add(`<div style="width: 500px; height: 9px"></div>`),
  "reaches from": add(`<p style="position: fixed; left: -60px; top: 0">aside</p>`),
  "scrolls sideways": add(
    `<div style="width: 90px; overflow: auto"><p style="width: 95px">wide</p></div>`,
  ),
  "is cut at its side": add(
    `<p style="width: 40px; overflow: hidden; white-space: nowrap">much too long</p>`,
  ),
  "is cut below": add(`<p style="height: 9px; overflow: hidden">two<br>lines</p>`),
  "does not show all of": add(`<input value="more than fits in it" style="width: 40px">`),
  'does not show all of "ten minutes"': add(
    `<select style="width: 60px"><option>ten minutes</option></select>`,
  ),
  "is broken": add(`<p style="width: 40px; overflow-wrap: anywhere">horoscope</p>`),
  "letters are wider than its box": add(
    `<button style="width: 20px; white-space: nowrap">wide</button>`,
  ),
  "lies under": add(`<div style="position: fixed; inset: 0"></div>`),
};

const walkBreaks = {
  "nothing shows": style("button:focus { outline: none; }"),
  "Tab does not come by <button": `() => {
    document.querySelector("#date").addEventListener("keydown", (event) => {
      if (event.key !== "Tab") return;
      event.preventDefault();
      document.querySelector(event.shiftKey ? "#save" : "#save").focus();
    });
  }`,
  "Tab is caught at": `() => {
    document.querySelector("#save").addEventListener("keydown", (event) => {
      if (event.key === "Tab") event.preventDefault(), document.querySelector("#pressed").focus();
    });
  }`,
  '<button #save> "Save" has the focus where it is not seen': style(
    "#save { position: fixed; left: -900px; }",
  ),
  '<button #pressed> "Press" has the focus where it is not seen': add(
    `<div style="position: fixed; inset: 0; background: white"></div>`,
  ),
};

const axeBreaks = {
  label: `() => document.querySelector("label").replaceWith(document.querySelector("#date"))`,
  "color-contrast": style("h1 { color: #999; background: #eee; }"),
  "button-name": add("<button></button>"),
  region: `() => document.body.insertAdjacentHTML("afterbegin", "<p>outside of all landmarks</p>")`,
  "html-has-lang": `() => document.documentElement.removeAttribute("lang")`,
};

describe("what judges the page", () => {
  let browser;
  before(async () => (browser = await Chromium.start()));
  afterEach(() => browser.closePages());
  after(() => browser.close());

  const judges = {
    layout: [layoutFaults, layoutBreaks],
    "the walk by Tab": [async (page) => (await walk(page)).faults, walkBreaks],
    "axe-core": [axeFaults, axeBreaks],
  };
  for (const [name, [judge, breaks]] of Object.entries(judges)) {
    it(`${name}: finds nothing where nothing is wrong`, async () => {
      assert.deepEqual(await judge(await browser.open(sample, view)), []);
    });
    for (const [fault, harm] of Object.entries(breaks)) {
      it(`${name}: finds "${fault}"`, async () => {
        const page = await browser.open(sample, view);
        await page.evaluate(harm);
        const faults = await judge(page);
        assert.ok(
          faults.some((line) => line.includes(fault)),
          `found: ${faults.join("; ") || "nothing"}`,
        );
      });
    }
  }

  it("paper: tells of pages, of words and of ink at the edge", async () => {
    const page = await browser.open(sample, view);
    const clean = readPaper(await page.print(papers.A4));
    assert.equal(clean.pages, 1);
    assert.match(clean.text, /Sample/);
    assert.ok(!clean.ink[0].atEdge && clean.ink[0].share > 0 && clean.ink[0].share < 0.05);
    await page.evaluate(
      style(
        "@page { margin: 0; } body { background: black; print-color-adjust: exact; height: 300vh; }",
      ),
    );
    const dark = readPaper(await page.print(papers.Letter));
    assert.ok(
      dark.pages > 1 && dark.ink[0].atEdge && dark.ink[0].share > 0.5,
      JSON.stringify(dark),
    );
  });
});
