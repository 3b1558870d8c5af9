// The package as other people use it: installed by npm, its readme's example run, bundled, typed.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { readFileSync, writeFileSync } from "node:fs";
import { dirname, join } from "node:path";
import { test } from "node:test";

import { withFolder, written } from "./native.mjs";

const folderOfPackage = dirname(process.env.VEYRUNA_MODULE);

/** A folder in which somebody has installed the package, from the archive that npm makes of it. */
function withInstalled(use) {
  return withFolder(async (folder) => {
    const npm = (...args) =>
      execFileSync("npm", [...args, "--offline", "--no-audit", "--no-fund", "--loglevel=error"], {
        cwd: folder,
        encoding: "utf8",
        env: { ...process.env, HOME: folder, npm_config_cache: join(folder, ".npm") },
      });
    const archive = npm("pack", folderOfPackage).trim().split("\n").at(-1);
    writeFileSync(join(folder, "package.json"), '{ "name": "table", "private": true }\n');
    npm("install", join(folder, archive));
    return use(folder);
  });
}

/** The first example of the readme. */
function example() {
  const readme = readFileSync(join(folderOfPackage, "README.md"), "utf8");
  return /```js\n(.*?)```/s.exec(readme)[1];
}

/** What the example must say: the command's own star map and events. */
function assertIsTheSky(output) {
  const options = ["--lat", "40.5N", "--long", "20.9W"];
  const moment = ["--month", "6", "--day", "12", "--hour", "22:30"];
  const map = written([...moment, ...options, "star-map"]);
  const day = ["--from", "720-06-12T12:00", "--for", "1 day", "--format", "json"];
  const { events } = JSON.parse(written(["events", ...day, ...options]));
  const lines = events.map((event) => `${event.date} ${event.description}`);
  assert.equal(output, [`${map.length} letters of SVG`, ...lines, ""].join("\n"));
}

test("the example of the readme in node, installed by npm", () =>
  withInstalled((folder) => {
    writeFileSync(join(folder, "example.mjs"), example());
    assertIsTheSky(execFileSync("node", ["example.mjs"], { cwd: folder, encoding: "utf8" }));
  }));

test("the same from a bundle, without the package", () =>
  withInstalled((folder) => {
    writeFileSync(join(folder, "example.mjs"), example());
    execFileSync(
      process.env.VEYRUNA_ESBUILD,
      ["example.mjs", "--bundle", "--minify", "--format=esm", "--outfile=bundle.mjs"],
      { cwd: folder, stdio: "pipe" },
    );
    return withFolder((elsewhere) => {
      writeFileSync(join(elsewhere, "bundle.mjs"), readFileSync(join(folder, "bundle.mjs")));
      const output = execFileSync("node", ["bundle.mjs"], { cwd: elsewhere, encoding: "utf8" });
      assertIsTheSky(output);
    });
  }));

test("the package holds what it says and no more", () =>
  withInstalled((folder) => {
    const there = (file) => readFileSync(join(folder, "node_modules/veyruna-web", file), "utf8");
    const { version, types, exports } = JSON.parse(there("package.json"));
    assert.equal(`veyruna ${version}`, written(["--version"]).split(" (")[0]);
    assert.equal(exports["."].types, types);
    const declared = there("veyruna.d.ts");
    for (const method of [
      "moment",
      "document",
      "record",
      "interpretation",
      "marks",
      "events",
      "search",
    ]) {
      assert.match(declared, new RegExp(`\\n  ${method}\\(`));
      assert.match(there("veyruna.mjs"), new RegExp(`\\n  ${method}\\(`));
    }
    assert.match(there("NOTICES.md"), /Permission is hereby granted/);
    assert.throws(() => there("package.json.in"));
  }));
