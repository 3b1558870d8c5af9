// The driver itself, tried on a page whose behaviour is known.

import assert from "node:assert/strict";
import { spawn, spawnSync } from "node:child_process";
import { once } from "node:events";
import { existsSync } from "node:fs";
import { after, afterEach, before, describe, it } from "node:test";

import { Chromium } from "./chromium.mjs";
import { until } from "./patience.mjs";

const sample = new URL("sample.html", import.meta.url).href;
const desk = { width: 800, height: 600 };
const phone = { width: 390, height: 844, scale: 2, touch: true };

const runs = (processId) => {
  try {
    process.kill(processId, 0);
    return true;
  } catch {
    return false;
  }
};

describe("the driver", () => {
  let browser;
  before(async () => (browser = await Chromium.start()));
  afterEach(() => browser.closePages());
  after(() => browser.close());

  it("finds nothing to say against a page that keeps to itself", async () => {
    const page = await browser.open(`${sample}#there`, desk);
    await page.painted();
    assert.deepEqual(page.watch.faults(sample), []);
    assert.deepEqual(page.watch.files, [sample]);
  });

  for (const [what, fault, words] of [
    ["a message", () => console.warn("so", 1), /console\.warning: so 1/],
    [
      "an error",
      () =>
        void setTimeout(() => {
          throw new Error("broken");
        }),
      /broken/,
    ],
    ["a promise that fails", () => void Promise.reject(new Error("unkept")), /unkept/],
    ["a request", () => void fetch("http://127.0.0.1:9/away").catch(() => {}), /connect-src/],
    ["a picture", () => void (new Image().src = "http://127.0.0.1:9/picture.png"), /img-src/],
    ["another file", () => void (location.href = "patience.mjs"), /patience\.mjs/],
    ["a question", () => void setTimeout(() => alert("well?")), /alert: well\?/],
  ]) {
    it(`hears ${what}`, async () => {
      const page = await browser.open(sample, desk);
      await page.evaluate(fault);
      const heard = () => page.watch.faults(sample).some((line) => words.test(line));
      await until(`${what} is heard`, heard);
    });
  }

  it("shows a view of the size, colours and scale that were asked for", async () => {
    const page = await browser.open(sample, { ...phone, dark: true, still: true });
    const seen = await page.evaluate(() => ({
      width: innerWidth,
      height: innerHeight,
      scale: devicePixelRatio,
      dark: matchMedia("(prefers-color-scheme: dark)").matches,
      still: matchMedia("(prefers-reduced-motion: reduce)").matches,
      touch: matchMedia("(pointer: coarse)").matches,
    }));
    assert.deepEqual(seen, {
      width: 390,
      height: 844,
      scale: 2,
      dark: true,
      still: true,
      touch: true,
    });
    const png = await page.picture();
    assert.deepEqual([png.readUInt32BE(16), png.readUInt32BE(20)], [780, 1688]);
  });

  it("moves one finger and two", async () => {
    const page = await browser.open(sample, phone);
    const seen = () => page.evaluate("() => told.splice(0)");
    const { x, y } = await (await page.select("#field")).box();
    await page.hands.swipe({ x, y }, { x: x + 60, y });
    const swipe = await seen();
    assert.ok(swipe.every(([, by]) => by === "touch"));
    assert.deepEqual(swipe.at(-1).slice(0, 1), ["pointerup"]);
    assert.equal(swipe.at(-1)[3], x + 60);
    await page.hands.pinch(x, y, { from: 40, to: 160 });
    const pinch = await seen();
    assert.equal(new Set(pinch.map(([, , finger]) => finger)).size, 2);
    const ends = pinch.filter(([kind]) => kind === "pointerup").map(([, , , at]) => at);
    assert.equal(Math.abs(ends[0] - ends[1]), 160);
  });

  it("drags, wheels and clicks with the mouse", async () => {
    const page = await browser.open(sample, desk);
    const { x, y } = await (await page.select("#field")).box();
    await page.hands.drag({ x, y }, { x: x + 30, y: y + 40 });
    await page.hands.wheel(x, y, { down: -120 });
    const seen = await page.until("the wheel is felt", "() => told.at(-1)[0] === 'wheel' && told");
    assert.equal(seen.at(-1)[5], -120);
    const up = seen.find(([kind]) => kind === "pointerup");
    assert.deepEqual(up.slice(3, 5), [x + 30, y + 40]);
  });

  for (const view of [desk, phone]) {
    it(`writes and presses ${view.touch ? "by finger" : "by mouse"}`, async () => {
      const page = await browser.open(sample, view);
      const date = await page.find("textbox", "Date");
      await date.write("12.06.720 (%'&\"#$!)");
      assert.equal(await date.evaluate((field) => field.value), "12.06.720 (%'&\"#$!)");
      await date.write("720-06-12");
      await (await page.find("button", /^Press$/)).press();
      const seen = () => document.querySelector("#told").textContent;
      assert.equal(await page.until("it is pressed", seen), "pressed at 720-06-12");
    });
  }

  it("walks by keys", async () => {
    const page = await browser.open(sample, desk);
    const at = () => page.evaluate(() => document.activeElement.id);
    await page.hands.key("Tab");
    assert.equal(await at(), "date");
    await page.hands.key("Tab");
    await page.hands.key("Tab", "Shift");
    assert.equal(await at(), "date");
    await page.hands.key("Tab");
    await page.hands.key(" ");
    await page.until("it is pressed", () => document.querySelector("#told").textContent !== "");
  });

  it("keeps what is saved", async () => {
    const page = await browser.open(sample, desk);
    const saved = await page.download(async () => (await page.select("#save")).press());
    assert.deepEqual([saved.name, saved.bytes.toString()], ["sample.svg", "<svg/>\n"]);
  });

  it("prints", async () => {
    const page = await browser.open(sample, desk);
    const pdf = await page.print({ width: 8.27, height: 11.69 });
    const text = spawnSync("pdftotext", ["-", "-"], { input: pdf }).stdout.toString();
    assert.match(text, /Sample/);
  });
});

describe("a browser of the driver", () => {
  it("leaves neither process nor folder when it is closed", async () => {
    const browser = await Chromium.start();
    assert.ok(existsSync(browser.profile));
    await browser.close();
    assert.ok(!existsSync(browser.profile));
    await until("its processes are gone", () => !runs(-browser.processId));
  });

  for (const [end, fault] of [
    ["fails", "throw new Error('a test that fails')"],
    ["is told to end", "process.kill(process.pid, 'SIGTERM'); setInterval(() => {}, 1000)"],
  ]) {
    it(`leaves neither when the test ${end}`, async () => {
      const text = `
        const { Chromium } = await import(${JSON.stringify(new URL("chromium.mjs", import.meta.url))});
        const browser = await Chromium.start();
        console.log(JSON.stringify([browser.profile, browser.processId]));
        ${fault}`;
      const child = spawn(process.execPath, ["--input-type=module", "-e", text], {
        stdio: ["ignore", "pipe", "ignore"],
      });
      const [line] = await once(child.stdout, "data");
      const [profile, processId] = JSON.parse(line);
      if (child.exitCode === null && child.signalCode === null) await once(child, "exit");
      await until("its processes are gone", () => !runs(-processId));
      assert.ok(!existsSync(profile));
    });
  }
});
