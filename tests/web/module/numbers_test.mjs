// Numbers are written and read in a browser as they are natively, although the library there has none of
// the conversions.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { readFileSync } from "node:fs";
import { test } from "node:test";

/** What the module writes; it calls nothing of the system that could matter. */
function ours() {
  const module = new WebAssembly.Module(readFileSync(process.env.VEYRUNA_NUMBER_LINES));
  const imports = Object.fromEntries(
    WebAssembly.Module.imports(module).map((wanted) => [
      wanted.module,
      new Proxy({}, { get: () => () => 52 }),
    ]),
  );
  const { exports } = new WebAssembly.Instance(module, imports);
  exports._initialize();
  const begin = exports.veyruna_number_lines();
  const bytes = new Uint8Array(exports.memory.buffer, begin);
  return new TextDecoder().decode(bytes.subarray(0, bytes.indexOf(0)));
}

test("thousands of numbers, to the letter", () => {
  const options = { encoding: "utf8", maxBuffer: 1 << 28, env: { LC_ALL: "C" } };
  const theirs = execFileSync(process.env.VEYRUNA_NATIVE_NUMBER_LINES, options).split("\n");
  const lines = ours().split("\n");
  assert.ok(theirs.length > 10_000);
  assert.equal(lines.length, theirs.length);
  theirs.forEach((line, i) => assert.equal(lines[i], line));
  for (const line of theirs.filter((line) => line !== "")) {
    const [bits, , back] = line.split(" ");
    assert.equal(back, bits, line);
  }
});
