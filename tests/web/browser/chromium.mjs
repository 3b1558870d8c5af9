// One headless Chromium of the test's own: a new empty profile, no network services of its own, and
// nothing left of either when the test ends, however it ends.

import { spawn } from "node:child_process";
import { mkdtempSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";

import { Connection } from "./connection.mjs";
import { Page } from "./page.mjs";
import { inTime } from "./patience.mjs";

const program = process.env.VEYRUNA_CHROMIUM ?? "chromium";

// Without its sandbox it starts as root and in containers too; it only ever opens pages of our own.
const options = [
  "--headless",
  "--no-sandbox",
  "--remote-debugging-pipe",
  "--disable-gpu",
  "--disable-dev-shm-usage",
  "--disable-quic",
  "--disable-background-networking",
  "--disable-component-update",
  "--disable-sync",
  "--disable-breakpad",
  "--disable-features=Translate,MediaRouter,OptimizationHints",
  "--no-first-run",
  "--no-default-browser-check",
  "--font-render-hinting=none",
];

export class Chromium {
  #process;
  #profile;
  #gone;
  #lastWords = "";
  #pages = [];
  #cleanUp = () => this.#endAtOnce();

  static async start() {
    const browser = new Chromium();
    browser.version = (await browser.connection.send("Browser.getVersion")).product;
    return browser;
  }

  constructor() {
    this.#profile = mkdtempSync(join(tmpdir(), "veyruna-chromium-"));
    // A group of its own, so that its many processes end together.
    this.#process = spawn(program, [...options, `--user-data-dir=${this.#profile}`], {
      stdio: ["ignore", "ignore", "pipe", "pipe", "pipe"],
      detached: true,
    });
    this.#process.stderr.on("data", (text) => {
      this.#lastWords = (this.#lastWords + text).slice(-4000);
    });
    const [, , , writing, reading] = this.#process.stdio;
    this.connection = new Connection(writing, reading);
    this.#gone = new Promise((gone) => {
      this.#process.on("error", (error) => {
        this.connection.end(
          new Error(`"${program}" does not start (${error.code}); wanted is Debian's chromium`),
        );
        gone();
      });
      this.#process.on("exit", (code, signal) => {
        this.connection.end(new Error(`Chromium ended (${code ?? signal}): ${this.#lastWords}`));
        gone();
      });
    });
    process.on("exit", this.#cleanUp);
    for (const signal of ["SIGINT", "SIGTERM", "SIGHUP"])
      process.once(signal, () => process.exit(1));
  }

  get profile() {
    return this.#profile;
  }

  get processId() {
    return this.#process.pid;
  }

  /** A new tab that shares no storage with others, opened at `url`; see Page.open. */
  async open(url, view) {
    const page = await Page.open(this.connection, url, view);
    this.#pages.push(page);
    return page;
  }

  /** Closes the pages that were opened since the last time. */
  async closePages() {
    for (const page of this.#pages.splice(0)) await page.close();
  }

  async close() {
    this.connection.send("Browser.close").catch(() => {});
    try {
      await inTime("the end of Chromium", this.#gone);
    } finally {
      this.#endAtOnce();
    }
  }

  #endAtOnce() {
    process.off("exit", this.#cleanUp);
    try {
      process.kill(-this.#process.pid, "SIGKILL");
    } catch {
      // All of the group have ended already, or it never began.
    }
    rmSync(this.#profile, { recursive: true, force: true, maxRetries: 20, retryDelay: 50 });
  }
}
