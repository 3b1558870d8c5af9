// One file that needs nothing but itself and may ask for nothing else.

import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { createServer } from "node:http";
import { gzipSync } from "node:zlib";

import { until } from "../browser/patience.mjs";
import { desk, evening, file, pageTests, phone, show, tabs, textOf } from "./sky_page.mjs";

/** Ways in which a page reaches out, each a function of the page that is given an address. */
const waysOut = {
  fetch: (url) => fetch(url).catch(() => {}),
  XMLHttpRequest: (url) =>
    new Promise((done) => {
      const request = new XMLHttpRequest();
      request.onloadend = done;
      request.open("GET", url);
      request.send();
    }),
  sendBeacon: (url) => void navigator.sendBeacon(url, "moment"),
  WebSocket: (url) =>
    new Promise((done) => {
      const socket = new WebSocket(url.replace("http", "ws"));
      socket.onerror = socket.onclose = () => done();
    }),
  EventSource: (url) => new Promise((done) => (new EventSource(url).onerror = () => done())),
  ...Object.fromEntries(
    ["img", "script", "iframe", "object", "audio"].map((kind) => [
      kind,
      `(url) => new Promise((done) => {
        const element = document.createElement("${kind}");
        element.onerror = element.onload = () => done();
        element["${kind === "object" ? "data" : "src"}"] = url;
        document.body.append(element);
        if (!["img", "script"].includes("${kind}")) requestAnimationFrame(() => done());
      })`,
    ]),
  ),
  stylesheet: (url) =>
    new Promise((done) => {
      const link = document.createElement("link");
      Object.assign(link, {
        rel: "stylesheet",
        href: url,
        onerror: () => done(),
        onload: () => done(),
      });
      document.head.append(link);
    }),
  font: (url) =>
    new FontFace("away", `url(${url})`).load().then(
      () => {},
      () => {},
    ),
  form: (url) => {
    const form = document.createElement("form");
    Object.assign(form, { action: url, method: "post", target: "_self" });
    document.body.append(form);
    form.submit();
  },
};

pageTests("the page in one file", (test) => {
  test("is small enough for a message", () => {
    const bytes = readFileSync(file);
    assert.ok(bytes.length <= 350_000, `${bytes.length} bytes`);
    assert.ok(gzipSync(bytes, { level: 9 }).length <= 130_000);
  });

  for (const size of [phone, desk]) {
    test(`opens every view at ${size.width} pixels with no message and no request`, async (open) => {
      const page = await open(size);
      for (const tab of tabs) await show(page, tab);
      assert.equal(page.watch.files.length, 1);
    });
  }

  test("opens with no address too", async (open) => {
    const page = await open(desk, { hash: "" });
    assert.match(await textOf(page, "#shown-clock"), /\d\d:\d\d/);
  });

  test("holds no address of a server", () => {
    const text = readFileSync(file, "utf8");
    const addresses = text.match(/\bhttps?:\/\/[^\s"'<>)\\]+/g) ?? [];
    // Names of the two languages it is written in; nothing is there to be fetched.
    const names = ["http://www.w3.org/2000/svg", "http://www.w3.org/1999/xlink"];
    assert.deepEqual(
      addresses.filter((address) => !names.includes(address)),
      [],
    );
  });

  test("may reach out in no way, also if something in it tried", async (open) => {
    const asked = [];
    const server = createServer((request, answer) => {
      asked.push(request.url);
      answer.end();
    });
    server.on("upgrade", (request, socket) => {
      asked.push(request.url);
      socket.destroy();
    });
    await new Promise((ready) => server.listen(0, "127.0.0.1", ready));
    const address = `http://127.0.0.1:${server.address().port}/`;
    try {
      for (const [way, reachOut] of Object.entries(waysOut)) {
        const page = await open(desk, { hash: evening });
        await page.evaluate(reachOut, address + way);
        // That it tried is known by its policy saying so.
        const refused = (line) => /Content Security Policy|ContentSecurityPolicy/.test(line);
        await until(`${way} is refused aloud`, () => page.watch.messages.some(refused));
        page.watch.messages = [];
        page.watch.requests = [];
      }
      assert.deepEqual(asked, []);
    } finally {
      server.close();
    }
  });
});
