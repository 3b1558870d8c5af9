// The time bar: steps, playing in both directions, and the hours of the day under a finger.
import { byId, face, make, say } from "./elements.mjs";
import { startDaylight } from "./daylight.mjs";
import { isLocal } from "./moment_fields.mjs";
import { heldWords, notify } from "./notices.mjs";
import { whenPressed } from "./pressed.mjs";
import { clockWords } from "./words.mjs";

/** A step, and what passes in a second of playing: days. */
const paces = [
  ["1 second", 1 / 86400],
  ["1 minute", 1 / 1440],
  ["10 minutes", 1 / 144],
  ["1 hour", 1 / 24],
  ["6 hours", 1 / 4],
  ["1 day", 1],
  ["1 week", 7],
  ["1 month", 30],
  ["1 year", 360],
];
const firstPace = 2;
const minute = 1 / 1440;
/** The longest session that the bar shows whole, in days; longer ones have a day's hours on it. */
const longestBar = 2;
/** A picture that came late, as from another tab, is no leap in time: seconds. */
const longestFrame = 0.25;

export function createTimeBar(engine, sky) {
  const { session } = sky;
  const pace = byId("pace");
  const bar = byId("hour-bar");
  pace.append(...paces.map(([name, days]) => make("option", { value: days }, name)));
  pace.selectedIndex = firstPace;
  let direction = 0;
  let lastFrame;

  /** Goes on by so many days; false at a session's bound. */
  function move(days) {
    const changed = sky.change({ baseTime: sky.baseTime + days });
    notify(changed.ok ? heldWords(sky, changed.held) : changed.error);
    return changed.ok && !changed.held;
  }

  function showPlaying() {
    for (const [id, way, symbol, label] of [
      ["play", 1, "i-play", "Play"],
      ["play-back", -1, "i-back", "Play backwards"],
    ]) {
      const isOn = direction === way;
      byId(id).setAttribute("aria-pressed", isOn);
      face(byId(id), isOn ? "i-pause" : symbol, isOn ? "Pause" : label);
    }
  }

  function playFrame(now) {
    if (direction === 0) {
      return;
    }
    const seconds = Math.min((now - (lastFrame ?? now)) / 1000, longestFrame);
    lastFrame = now;
    if (seconds > 0 && !move(direction * Number(pace.value) * seconds)) {
      play(0);
      return;
    }
    requestAnimationFrame(playFrame);
  }

  /** Plays forwards (1), backwards (-1) or not (0). */
  function play(way) {
    if ((direction !== 0) !== (way !== 0)) {
      if (way === 0) {
        sky.release();
      } else {
        sky.hold();
        requestAnimationFrame(playFrame);
      }
    }
    direction = way;
    lastFrame = undefined;
    showPlaying();
  }

  showPlaying();

  const toggle = (way) => play(direction === way ? 0 : way);
  const step = (way) => {
    play(0);
    move(way * Number(pace.value));
  };
  face(byId("earlier"), "i-earlier", "A step earlier");
  face(byId("later"), "i-later", "A step later");
  byId("play").onclick = () => toggle(1);
  byId("play-back").onclick = () => toggle(-1);
  whenPressed(byId("earlier"), sky, () => step(-1));
  whenPressed(byId("later"), sky, () => step(1));

  // The bar's left end; it stays where it is while a finger holds the bar.
  const showsSession = session.to - session.from <= longestBar;
  let begin = 0;
  let isHeld = false;
  if (showsSession) {
    bar.max = Math.round((session.to - session.from) / minute);
    bar.setAttribute("aria-label", "Time of the session");
  } else {
    bar.max = 1439;
  }

  function showBar() {
    const clock = isLocal() ? sky.reading.local : sky.reading.standard;
    bar.disabled = !showsSession && !clock;
    if (!isHeld) {
      begin = showsSession ? session.from : sky.baseTime - (clock?.hour ?? 0) / 24;
      bar.value = Math.round((sky.baseTime - begin) / minute);
    }
    bar.setAttribute("aria-valuetext", clock ? clockWords(clock) : "");
  }

  const letGo = () => {
    if (isHeld) {
      isHeld = false;
      sky.release();
      sky.refresh();
    }
  };
  bar.addEventListener("input", () => {
    play(0);
    if (!isHeld) {
      isHeld = true;
      sky.hold();
    }
    const changed = sky.change({ baseTime: begin + bar.value * minute });
    notify(heldWords(sky, changed.held));
  });
  bar.addEventListener("change", letGo);
  bar.addEventListener("blur", letGo);

  sky.whenMoved(showBar);
  // To players dawn and dusk are still to come.
  if (!session.isForPlayers) {
    startDaylight(engine, sky, bar, () => ({ begin, days: bar.max * minute }));
  }
  addEventListener("visibilitychange", () => document.hidden && play(0));
  return { toggle, step };
}

/** The moment in words, on the button that opens its fields. */
export function showMoment({ date, clock, place }) {
  say(byId("shown-date"), date);
  say(byId("shown-clock"), clock);
  say(byId("shown-place"), place);
}
