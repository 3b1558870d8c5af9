// page_figures.mjs FOLDER RUNS SECONDS: prints the figures of the page that was built in FOLDER; see measure_page.

import { readFileSync } from "node:fs";
import { join, resolve } from "node:path";
import { pathToFileURL } from "node:url";
import { gzipSync } from "node:zlib";

import { Chromium } from "../tests/web/browser/chromium.mjs";

const [, , folder, runs, seconds] = process.argv;
const file = resolve(folder, "veyruna.html");
const address = `${pathToFileURL(file).href}#720-06-12T22:30;40.5N,20.9W`;

const sorted = (numbers) => [...numbers].sort((one, other) => one - other);
const atPart = (numbers, part) => sorted(numbers)[Math.floor((numbers.length - 1) * part)];
const kilobytes = (bytes) => `${(bytes / 1000).toFixed(0)} kB`;

function printSize(name, path) {
  const bytes = readFileSync(path);
  const zipped = gzipSync(bytes, { level: 9 }).length;
  console.log(`${name}: ${kilobytes(bytes.length)}, ${kilobytes(zipped)} gzipped`);
}

/** Put into the page before anything of its own: notes when the first chart is there and when it is painted. */
const noteStart = `new MutationObserver((changes, observer) => {
  if (!document.querySelector("#star-map svg.sheet *")) return;
  observer.disconnect();
  const there = performance.now();
  requestAnimationFrame(() => setTimeout(() => (globalThis.start = { there, painted: performance.now() })));
}).observe(document, { childList: true, subtree: true });`;

/** Milliseconds from navigation to the first chart in the document, and to when it has been painted. */
async function start(browser, view) {
  const page = await browser.open("about:blank", view);
  await page.send("Page.addScriptToEvaluateOnNewDocument", { source: noteStart });
  await page.go(address);
  const times = await page.until("the first chart is painted", () => globalThis.start);
  await browser.closePages();
  return times;
}

/** In the page: milliseconds between one new chart and the next, for so many seconds. */
function intervals(chart, seconds) {
  return new Promise((done) => {
    const sheet = document.querySelector(`#${chart} svg.sheet`);
    const times = [];
    let isNew = false;
    new MutationObserver(() => (isNew = true)).observe(sheet, { childList: true });
    const begin = performance.now();
    const look = (now) => {
      if (isNew) times.push(now);
      isNew = false;
      if (now < begin + seconds * 1000) requestAnimationFrame(look);
      else done(times.slice(1).map((time, at) => time - times[at]));
    };
    requestAnimationFrame(look);
  });
}

/** The side of the square that a chart has, in pixels. */
const sideOf = (page, chart) =>
  page.evaluate((chart) => {
    const { width, height } = document.querySelector(`#${chart}`).getBoundingClientRect();
    return Math.round(Math.min(width, height));
  }, chart);

/** Where `side` is given, in a view just so high that the chart has it. */
async function printFrames(browser, tab, chart, view, side) {
  const page = await browser.open(address, view);
  await (await page.select(`#tab-${chart}`)).press();
  await page.until(
    `the ${tab} is there`,
    (chart) => document.querySelector(`#${chart} svg.sheet *`),
    chart,
  );
  if (side) await page.see({ ...view, height: view.height + side - (await sideOf(page, chart)) });
  await page.painted();
  await (await page.find("button", "Play")).press();
  const between = await page.evaluate(intervals, chart, Number(seconds));
  const rate = between.length / (between.reduce((sum, one) => sum + one, 0) / 1000);
  const milliseconds = (part) => atPart(between, part).toFixed(1);
  console.log(
    `${tab}, ${await sideOf(page, chart)} pixels at ${view.scale ?? 1}×: ${rate.toFixed(1)} a second, ` +
      `a frame ${milliseconds(0.5)} ms, of the slowest tenth ${milliseconds(0.9)} ms`,
  );
  await browser.closePages();
}

printSize("page", file);
printSize("its engine", join(folder, "web", "veyruna-page-engine.wasm"));
const phone = { width: 390, height: 844, scale: 2, touch: true };
const desk = { width: 1600, height: 900 };
const browser = await Chromium.start();
try {
  for (const [name, view] of [
    ["phone", phone],
    ["desk", desk],
  ]) {
    const times = [];
    for (let run = 0; run < Number(runs); ++run) times.push(await start(browser, view));
    const median = (what) =>
      atPart(
        times.map((time) => time[what]),
        0.5,
      ).toFixed(0);
    console.log(
      `${name}, first chart in the document after ${median("there")} ms, painted after ${median("painted")} ms`,
    );
  }
  for (const [view, side] of [[phone], [desk, 800]]) {
    await printFrames(browser, "Star map", "star-map", view, side);
    await printFrames(browser, "Horoscope", "horoscope", view, side);
  }
} finally {
  await browser.close();
}
