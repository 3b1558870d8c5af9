// The package in a page of somebody else: from <script type="module">, under a content policy.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { createServer } from "node:http";
import { dirname, join } from "node:path";
import { test } from "node:test";

import { Chromium } from "../browser/chromium.mjs";
import { written } from "./native.mjs";

const folderOfPackage = dirname(process.env.VEYRUNA_MODULE);

const page = `<!DOCTYPE html><meta charset="utf-8"><title>A tabletop</title><link rel="icon" href="data:,">
<script type="module">
import { load } from "./veyruna-web/veyruna.mjs";
const veyruna = await load();
const sky = { moment: "720-06-12T22:30", lat: "40.5N", long: "20.9W" };
window.said = [veyruna.document("moment", sky), veyruna.moment({ ...sky, lat: "north" })];
</script>`;

/** A server for the page and the package, and nothing else. */
async function served(use) {
  const server = createServer((request, response) => {
    const [, file] = /^\/veyruna-web\/([a-z.]+)$/.exec(request.url) ?? [];
    const isPage = request.url === "/";
    response.setHeader("content-type", isPage ? "text/html" : "text/javascript");
    response.setHeader(
      "content-security-policy",
      "default-src 'none'; script-src 'self' 'unsafe-inline' 'wasm-unsafe-eval'; img-src data:",
    );
    response.end(isPage ? page : readFileSync(join(folderOfPackage, file)));
  });
  await new Promise((listening) => server.listen(0, "127.0.0.1", listening));
  try {
    await use(`http://127.0.0.1:${server.address().port}/`);
  } finally {
    server.close();
  }
}

test("a page takes the module as a script", () =>
  served(async (url) => {
    const chromium = await Chromium.start();
    try {
      const tabletop = await chromium.open(url, { width: 800, height: 600 });
      const [moment, refused] = await tabletop.until("the module has answered", () => window.said);
      const options = ["--month", "6", "--day", "12", "--hour", "22:30"];
      assert.equal(moment.value, written([...options, "moment"]));
      assert.match(refused.error, /^lat: "north" is not accepted/);
      assert.deepEqual(tabletop.watch.messages, []);
      assert.deepEqual(
        tabletop.watch.requests.map((address) => address.replace(url, "/")),
        ["/", "/veyruna-web/veyruna.mjs", "/veyruna-web/engine.mjs"],
      );
    } finally {
      await chromium.close();
    }
  }));
