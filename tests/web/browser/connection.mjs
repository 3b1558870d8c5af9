// Chromium's DevTools protocol over a pair of pipes: JSON messages, each ended by a zero byte.

import { inTime } from "./patience.mjs";

export class Connection {
  #writing;
  #lastId = 0;
  #asked = new Map();
  #listeners = new Set();
  #begun = [];
  #over = null;

  /** `writing` is what Chromium reads from, `reading` what it writes to. */
  constructor(writing, reading) {
    this.#writing = writing;
    reading.on("data", (chunk) => this.#take(chunk));
    reading.on("close", () => this.end(new Error("Chromium has closed its end of the pipe")));
    writing.on("error", (error) => this.end(error));
  }

  /** The result of one command, of the whole browser or of the session of one page. */
  send(method, params = {}, sessionId = undefined) {
    if (this.#over) return Promise.reject(this.#over);
    const id = ++this.#lastId;
    const answer = new Promise((give, fail) => this.#asked.set(id, { method, give, fail }));
    this.#writing.write(JSON.stringify({ id, method, params, sessionId }) + "\0");
    return inTime(method, answer);
  }

  /** Calls `listener({method, params, sessionId})` for every event, until the returned function is. */
  listen(listener) {
    this.#listeners.add(listener);
    return () => this.#listeners.delete(listener);
  }

  /** Whoever still waits for an answer gets this error. */
  end(error) {
    this.#over ??= error;
    for (const { fail } of this.#asked.values()) fail(this.#over);
    this.#asked.clear();
  }

  #take(chunk) {
    let begin = 0;
    for (let end; (end = chunk.indexOf(0, begin)) >= 0; begin = end + 1) {
      this.#begun.push(chunk.subarray(begin, end));
      const message = JSON.parse(Buffer.concat(this.#begun).toString("utf8"));
      this.#begun = [];
      this.#hand(message);
    }
    if (begin < chunk.length) this.#begun.push(chunk.subarray(begin));
  }

  #hand(message) {
    if (message.id === undefined) {
      for (const listener of [...this.#listeners]) listener(message);
      return;
    }
    const asked = this.#asked.get(message.id);
    this.#asked.delete(message.id);
    if (message.error) asked?.fail(new Error(`${asked.method}: ${message.error.message}`));
    else asked?.give(message.result);
  }
}
