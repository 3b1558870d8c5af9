// One page in one tab: opened, looked at, asked, printed. What a person does to it is in hands.mjs,
// what it says and fetches in watch.mjs, and what is found by name in element.mjs.

import { mkdtempSync, readFileSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";

import { Element, elementsOf } from "./element.mjs";
import { Hands } from "./hands.mjs";
import { inTime, until } from "./patience.mjs";
import { Watch } from "./watch.mjs";

/** A view is {width, height} in CSS pixels, and where they are not the usual: scale (1), touch (false),
    dark, still (less motion is wished for), forcedColours, paper (as it would be printed): all false. */
const usualView = {
  scale: 1,
  touch: false,
  dark: false,
  still: false,
  forcedColours: false,
  paper: false,
};

export class Page {
  #connection;
  #context;
  #target;
  #session;
  #loads = 0;
  #stopListening;
  #listeners = new Map();

  static async open(connection, url, view) {
    const page = new Page();
    page.#connection = connection;
    const { browserContextId } = await connection.send("Target.createBrowserContext");
    page.#context = browserContextId;
    const { targetId } = await connection.send("Target.createTarget", {
      url: "about:blank",
      browserContextId,
    });
    page.#target = targetId;
    const attached = await connection.send("Target.attachToTarget", { targetId, flatten: true });
    page.#session = attached.sessionId;
    page.#stopListening = connection.listen((event) => page.#hear(event));
    page.on("Page.loadEventFired", () => ++page.#loads);
    page.hands = new Hands(page);
    page.watch = new Watch(page);
    for (const domain of ["Page", "Runtime", "Log", "Network", "Audits", "DOM"]) {
      await page.send(`${domain}.enable`);
    }
    await page.see(view);
    await page.go(url);
    return page;
  }

  send(method, params) {
    return this.#connection.send(method, params, this.#session);
  }

  /** Calls `listener(params)` at each such event of this page. */
  on(method, listener) {
    this.#listeners.set(method, [...(this.#listeners.get(method) ?? []), listener]);
  }

  #hear({ method, params, sessionId }) {
    if (sessionId !== this.#session) return;
    for (const listener of this.#listeners.get(method) ?? []) listener(params);
  }

  /** Opens an address and waits until the page is loaded; one that differs only behind # loads nothing. */
  async go(url) {
    const before = this.#loads;
    const { errorText, loaderId } = await this.send("Page.navigate", { url });
    if (errorText) throw new Error(`${url}: ${errorText}`);
    if (loaderId) await until(`${url} is loaded`, () => this.#loads > before);
  }

  async reload() {
    const before = this.#loads;
    await this.send("Page.reload");
    await until("the page is loaded again", () => this.#loads > before);
  }

  /** Sets the view; what is not named is as usual. */
  async see(view) {
    this.view = { ...usualView, ...view };
    const { width, height, scale, touch, dark, still, forcedColours, paper } = this.view;
    await this.send("Emulation.setDeviceMetricsOverride", {
      width,
      height,
      deviceScaleFactor: scale,
      mobile: touch,
    });
    await this.send("Emulation.setTouchEmulationEnabled", { enabled: touch, maxTouchPoints: 5 });
    await this.send("Emulation.setEmulatedMedia", {
      media: paper ? "print" : "",
      features: [
        { name: "prefers-color-scheme", value: dark ? "dark" : "light" },
        { name: "prefers-reduced-motion", value: still ? "reduce" : "no-preference" },
        { name: "forced-colors", value: forcedColours ? "active" : "none" },
      ],
    });
  }

  /** What a function gives in the page; it sees its arguments and the page, nothing of the test. */
  evaluate(action, ...given) {
    return this.evaluateText(`(${action})(...${JSON.stringify(given)})`);
  }

  async evaluateText(expression) {
    const answer = await this.send("Runtime.evaluate", {
      expression,
      awaitPromise: true,
      returnByValue: true,
      userGesture: true,
    });
    if (answer.exceptionDetails) {
      const { exception, text } = answer.exceptionDetails;
      throw new Error(`in the page: ${exception?.description ?? text}`);
    }
    return answer.result.value;
  }

  /** Waits until the function gives something true in the page, and gives that. */
  until(what, action, ...given) {
    return until(what, () => this.evaluate(action, ...given));
  }

  /** Waits until two more frames are on the screen. */
  painted() {
    return this.evaluate(
      () => new Promise((done) => requestAnimationFrame(() => requestAnimationFrame(done))),
    );
  }

  /** The element that a CSS selector finds first. */
  async select(selector) {
    const { root } = await this.send("DOM.getDocument", { depth: 0 });
    const { nodeId } = await this.send("DOM.querySelector", { nodeId: root.nodeId, selector });
    if (!nodeId) throw new Error(`nothing in the page is ${selector}`);
    const { node } = await this.send("DOM.describeNode", { nodeId });
    return new Element(this, node.backendNodeId);
  }

  /** All that a screen reader is told of: {role, name, description, value, focusable, element} each. */
  elements() {
    return elementsOf(this);
  }

  /** The one element of this role and name, as a screen reader has them; `name` may be a pattern. */
  async find(role, name) {
    const fits = (told) => (name instanceof RegExp ? name.test(told) : told === name);
    const found = await until(`${role} "${name}" is there`, async () => {
      const all = await this.elements();
      const some = all.filter((told) => told.role === role && fits(told.name));
      return some.length > 0 && some;
    });
    if (found.length > 1) throw new Error(`${found.length} elements are ${role} "${name}"`);
    return found[0].element;
  }

  /** The view as PNG; `whole` also what is scrolled away. */
  async picture({ whole = false } = {}) {
    const { data } = await this.send("Page.captureScreenshot", {
      format: "png",
      captureBeyondViewport: whole,
    });
    return Buffer.from(data, "base64");
  }

  /** The page as PDF on paper of so many inches, with backgrounds, as who asks for them gets it. */
  async print({ width, height }) {
    const { data } = await this.send("Page.printToPDF", {
      paperWidth: width,
      paperHeight: height,
      printBackground: true,
    });
    return Buffer.from(data, "base64");
  }

  /** What is downloaded by an action: {name, bytes}. */
  async download(action) {
    const folder = mkdtempSync(join(tmpdir(), "veyruna-download-"));
    const settings = { browserContextId: this.#context, eventsEnabled: true };
    let stopListening;
    try {
      await this.#connection.send("Browser.setDownloadBehavior", {
        ...settings,
        behavior: "allowAndName",
        downloadPath: folder,
      });
      let name;
      const done = new Promise((give, fail) => {
        stopListening = this.#connection.listen(({ method, params }) => {
          if (method === "Browser.downloadWillBegin") name = params.suggestedFilename;
          if (method !== "Browser.downloadProgress") return;
          if (params.state === "completed") give(params.guid);
          if (params.state === "canceled") fail(new Error("the download was cancelled"));
        });
      });
      await action();
      const file = join(folder, await inTime("a download", done));
      return { name, bytes: readFileSync(file) };
    } finally {
      stopListening?.();
      rmSync(folder, { recursive: true, force: true });
    }
  }

  async close() {
    this.#stopListening();
    await this.#connection.send("Target.closeTarget", { targetId: this.#target });
    await this.#connection.send("Target.disposeBrowserContext", {
      browserContextId: this.#context,
    });
  }
}
