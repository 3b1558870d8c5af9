// Makes the page, one file with everything inside:
//
//     node make_page.mjs --esbuild PROGRAM --engine veyruna.mjs --picture icon.svg --output veyruna.html
//
// Style and script are bundled by esbuild; the content policy in the page names them by their hashes,
// so that nothing else can run in it or be loaded by it. Who hands the page on hands on the notices of what
// others made of it: they are a comment in its head. Fails where the page is larger than a phone
// should have to keep.
import { execFileSync } from "node:child_process";
import { createHash } from "node:crypto";
import { readFileSync, writeFileSync } from "node:fs";
import { dirname, join } from "node:path";
import { fileURLToPath } from "node:url";
import { parseArgs } from "node:util";
import { gzipSync } from "node:zlib";

const most = 350_000; // bytes
const mostZipped = 130_000;
const here = dirname(fileURLToPath(import.meta.url));
const sources = join(here, "page");

const text = { type: "string" };
const { values: asked } = parseArgs({
  options: { esbuild: text, engine: text, picture: text, output: text },
});

const bundled = (entry, ...options) =>
  execFileSync(
    asked.esbuild,
    [
      join(sources, entry),
      "--bundle",
      "--minify",
      "--charset=utf8",
      "--log-level=warning",
      ...options,
    ],
    { encoding: "utf8", maxBuffer: 1 << 24 },
  ).trim();

/** What a content policy knows an element's text by. */
const hashOf = (content) => `'sha256-${createHash("sha256").update(content).digest("base64")}'`;

/** An SVG as an address, readable where it may be. */
const pictureAddress = (svg) =>
  `data:image/svg+xml,${svg
    .replace(/<!--.*?-->|<(title|desc)>.*?<\/\1>/gs, "")
    .replace(/\s+/g, " ")
    .replace(/> </g, "><")
    .trim()
    .replaceAll('"', "'")
    .replace(/[%#<>{}]/g, (sign) => encodeURIComponent(sign))}`;

const style = bundled("page.css");
const script = bundled(
  "page.mjs",
  "--format=esm",
  "--target=es2020",
  `--alias:veyruna=${asked.engine}`,
);
const policy = [
  "default-src 'none'",
  `script-src ${hashOf(script)} 'wasm-unsafe-eval'`,
  `style-src ${hashOf(style)}`,
  "img-src data:",
  "base-uri 'none'",
  "form-action 'none'",
].join("; ");
const parts = {
  policy,
  notices: `<!--\n${readFileSync(join(here, "package/NOTICES.md"), "utf8")}-->`,
  icon: pictureAddress(readFileSync(asked.picture, "utf8")),
  style,
  script,
};

const page = readFileSync(join(sources, "page.html"), "utf8")
  .replace(/<!--.*?-->\n?/gs, "")
  .replace(/^\s+/gm, "")
  .replace(/\{\{(\w+)\}\}/g, (_, name) => parts[name]);
const zipped = gzipSync(page, { level: 9 }).length;
writeFileSync(asked.output, page);

const kilobytes = (bytes) => `${(bytes / 1000).toFixed(1)} kB`;
console.log(
  `${asked.output}: ${kilobytes(Buffer.byteLength(page))} of ${kilobytes(most)}, gzipped ` +
    `${kilobytes(zipped)} of ${kilobytes(mostZipped)}; script ${kilobytes(Buffer.byteLength(script))}, ` +
    `style ${kilobytes(Buffer.byteLength(style))}`,
);
if (Buffer.byteLength(page) > most || zipped > mostZipped) {
  console.error(`${asked.output} is too large.`);
  process.exitCode = 1;
}
