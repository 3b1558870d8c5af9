// The native command, whose bytes the module's are compared with.
import { execFileSync, spawnSync } from "node:child_process";
import { mkdtempSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";

const program = process.env.VEYRUNA_COMMAND;

/** What the command writes, in a locale that must not matter, with no places but its own. */
export function written(args, home = tmpdir()) {
  return execFileSync(program, args, {
    encoding: "utf8",
    maxBuffer: 1 << 28,
    env: { PATH: process.env.PATH, HOME: home, LC_ALL: "C" },
  });
}

/** What it says where it refuses; fails where it does not. */
export function refusal(args) {
  const run = spawnSync(program, args, { encoding: "utf8", env: { HOME: tmpdir() } });
  if (run.status !== 2) {
    throw new Error(`veyruna ${args.join(" ")} was not refused: ${run.stdout}${run.stderr}`);
  }
  return run.stderr;
}

/** Calls `use` with a folder that is gone afterwards. */
export async function withFolder(use) {
  const folder = mkdtempSync(join(tmpdir(), "veyruna-web-"));
  try {
    return await use(folder);
  } finally {
    rmSync(folder, { recursive: true, force: true });
  }
}
