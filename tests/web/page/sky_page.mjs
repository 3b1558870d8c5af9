// The page under test, opened as a person has it: a file, in a browser, at some size.

import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join, resolve } from "node:path";
import { after, before, describe, it } from "node:test";
import { pathToFileURL } from "node:url";

import { Chromium } from "../browser/chromium.mjs";

function told(name) {
  const path = process.env[name];
  if (!path) throw new Error(`${name} must name a file; ctest --preset wasm says which`);
  return resolve(path);
}

export const file = told("VEYRUNA_PAGE");

/** The engine of the same build, outside of any browser. */
export const engine = async () => (await import(pathToFileURL(told("VEYRUNA_MODULE")).href)).load();

export const phone = { width: 390, height: 844, scale: 2, touch: true };
export const desk = { width: 1280, height: 800 };

/** From the smallest phone, which is also a window enlarged four times, to a wide screen. */
export const sizes = [
  { width: 320, height: 568, scale: 2, touch: true },
  phone,
  { width: 844, height: 390, scale: 2, touch: true },
  { width: 768, height: 1024, scale: 2, touch: true },
  desk,
  { width: 2560, height: 1440 },
];

export const tabs = ["Star map", "Horoscope", "Tonight", "Tables"];

/** What is there once a view is filled, which follows its chart. */
const filled = {
  "Star map": "#positions tbody tr",
  Horoscope: "#interpretation *",
  Tonight: "#events li, #no-events:not([hidden])",
  Tables: "#table-box table",
};

/** The evening most tests look at, as the address has it. */
export const evening = "#720-06-12T22:30;40.5N,20.9W";

/** Shows a tab, by its name. */
export async function show(page, tab) {
  await (await page.find("tab", tab)).press();
  await page.until(
    `${tab} is shown`,
    (tab) => {
      const [panel, ...others] = [...document.querySelectorAll("[role=tabpanel]")].filter(
        (one) => !one.hidden,
      );
      return (
        others.length === 0 &&
        panel.getAttribute("aria-labelledby") &&
        document.getElementById(panel.getAttribute("aria-labelledby")).textContent.trim() === tab
      );
    },
    tab,
  );
  await page.until(`${tab} is filled`, (filled) => document.querySelector(filled), filled[tab]);
  await page.painted();
}

/** Waits until the sky has come to rest at a clock time of the standard clock, and all has followed. */
export function restsAt(page, clock) {
  return page.until(
    `the moment that is told is ${clock}`,
    (clock) => document.querySelector("#told").textContent.includes(`, ${clock} standard time`),
    clock,
  );
}

/** Where the inputs lie in a sheet, opens it. */
export async function openInputs(page) {
  const hidden = () =>
    !document.querySelector("#year").checkVisibility({ visibilityProperty: true });
  if (!(await page.evaluate(hidden))) return;
  await (await page.select("#open-inputs")).press();
  await page.until("the inputs are there", () =>
    document.querySelector("#year").checkVisibility({ visibilityProperty: true }),
  );
  await page.painted();
}

export const textOf = (page, selector) =>
  page.evaluate((selector) => document.querySelector(selector)?.textContent ?? null, selector);

/** What stands in the address of the page, without "#". */
export const addressOf = (page) => page.evaluate(() => decodeURIComponent(location.hash.slice(1)));

/** The page as it is made for a session, in a file of its own below `folder`: of what the command is to be
    given, or of what it writes into the page. */
function fileOfSession(folder, session) {
  if (Array.isArray(session)) {
    const path = join(folder, "evening.html");
    const env = { ...process.env, HOME: folder };
    execFileSync(told("VEYRUNA_COMMAND"), ["page", ...session, "-o", path], { env });
    return path;
  }
  const plain = readFileSync(file, "utf8");
  const empty = '<script type="application/json" id="session">{}</script>';
  assert.equal(plain.split(empty).length, 2, "the page has one place for a session");
  const text = JSON.stringify(session).replaceAll("<", "\\u003c");
  const path = join(folder, "session.html");
  writeFileSync(
    path,
    plain.replace(empty, () => empty.replace("{}", () => text)),
  );
  return path;
}

/**
 * Tests with a Chromium of their own. Each is given `open(view, {hash, session})`, and fails where a page
 * that it opened said something on the console, broke its content policy or asked for anything.
 */
export function pageTests(name, define) {
  describe(name, () => {
    let browser;
    let folder;
    before(async () => {
      folder = mkdtempSync(join(tmpdir(), "veyruna-page-"));
      browser = await Chromium.start();
    });
    after(async () => {
      rmSync(folder, { recursive: true, force: true });
      await browser?.close();
    });
    define((what, run) =>
      it(what, async () => {
        const opened = [];
        const open = async (view, { hash = evening, session } = {}) => {
          const path = session
            ? fileOfSession(mkdtempSync(join(folder, "session-")), session)
            : file;
          const address = pathToFileURL(path).href;
          const page = await browser.open(address + hash, view);
          opened.push([page, address]);
          await page.until(
            "the first moment is told",
            () => document.querySelector("#told").textContent !== "",
          );
          return page;
        };
        try {
          await run(open);
          for (const [page, address] of opened)
            assert.equal(page.watch.faults(address).join("\n"), "");
        } finally {
          await browser.closePages();
        }
      }));
  });
}
