// How long a test waits for what must come: VEYRUNA_PATIENCE seconds, 120 where nothing is said, and
// for ever where it is 0. No shorter time decides anything.

import { setTimeout as pause } from "node:timers/promises";

const asked = process.env.VEYRUNA_PATIENCE ?? "";
export const patienceSeconds = /^\d+$/.test(asked) ? Number(asked) : 120;

/** An error that says what has not come. */
export function impatience(what) {
  return new Error(`${what}: not within ${patienceSeconds} seconds (VEYRUNA_PATIENCE)`);
}

/** What the promise gives; fails with `what` where it gives nothing in time. */
export function inTime(what, promise) {
  if (patienceSeconds === 0) return promise;
  let timer;
  const end = new Promise((_, fail) => {
    timer = setTimeout(() => fail(impatience(what)), patienceSeconds * 1000);
  });
  return Promise.race([promise, end]).finally(() => clearTimeout(timer));
}

/** Asks again and again until the answer is true, and gives it. The last answer is told on failure. */
export async function until(what, ask) {
  const end = performance.now() + patienceSeconds * 1000;
  for (;;) {
    const answer = await ask();
    if (answer) return answer;
    if (patienceSeconds > 0 && performance.now() > end) throw impatience(what);
    await pause(20);
  }
}
