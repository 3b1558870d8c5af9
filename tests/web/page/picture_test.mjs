// The picture of the page in README and manual shows the page as it is now.

import assert from "node:assert/strict";
import { execFileSync, spawnSync } from "node:child_process";
import { mkdtempSync, readdirSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { describe, it } from "node:test";
import { fileURLToPath } from "node:url";

const project = fileURLToPath(new URL("../../..", import.meta.url));
const inTools = (name) => join(project, "tools", "pictures", name);

/** Squares of eight of the page's own pixels: browsers of other versions draw letters a little otherwise. */
const [side, limit] = ["16", "24"];

function difference(shown, drawn) {
  const words = [inTools("comparison.py"), shown, drawn, side, limit];
  return spawnSync("/usr/bin/python3", ["-B", ...words], { encoding: "utf8" }).stdout.trim();
}

describe("the picture of the page", () => {
  it("is not older than the page", () => {
    const folder = mkdtempSync(join(tmpdir(), "veyruna-picture-"));
    try {
      const drawn = join(folder, "page-phone.png");
      execFileSync("node", [inTools("page_picture.mjs"), process.env.VEYRUNA_PAGE, drawn]);
      for (const shown of ["docs/images/page-phone.png", "docs/manual/images/page-phone.png"]) {
        const words = difference(join(project, shown), drawn);
        assert.equal(words, "", `${shown} ${words}; tools/make_pictures makes it anew`);
      }
      const other = join(project, "docs/images/star-map.png");
      assert.notEqual(difference(other, drawn), "", "another picture is told apart");
      assert.deepEqual(readdirSync(folder), ["page-phone.png"]);
    } finally {
      rmSync(folder, { recursive: true, force: true });
    }
  });
});
