// The moment and place shown, and who wants to know of them. Moments are days since noon of the
// first day, places degrees, north and east positive.

/** So long nothing may move until tables, address and voices follow the chart, in milliseconds. */
const restAfter = 140;

/** Degrees that were read from a text may differ in their last digit. */
export const isSamePlace = (one, other) =>
  Math.abs(one.lat - other.lat) < 1e-6 && Math.abs(one.long - other.long) < 1e-6;

export function createSky(engine, session) {
  const state = { baseTime: session.baseTime, ...session.place };
  const onFrame = [];
  const onRest = [];
  let frame = 0;
  let rest = 0;
  let holders = 0;
  let reading;

  function drawFrame() {
    frame = 0;
    for (const listener of onFrame) {
      listener(sky);
    }
  }

  function settle() {
    rest = 0;
    if (frame !== 0) {
      cancelAnimationFrame(frame);
      drawFrame();
    }
    for (const listener of onRest) {
      listener(sky);
    }
  }

  function restSoon() {
    clearTimeout(rest);
    rest = holders === 0 ? setTimeout(settle, restAfter) : 0;
  }

  const sky = {
    session,
    get baseTime() {
      return state.baseTime;
    },
    get lat() {
      return state.lat;
    },
    get long() {
      return state.long;
    },
    /** As the engine's functions are asked. */
    get asked() {
      return { moment: state.baseTime, lat: state.lat, long: state.long };
    },
    /** The engine's reading of moment and place. */
    get reading() {
      reading ??= engine.moment(sky.asked).value;
      return reading;
    },
    get isMoving() {
      return holders > 0;
    },

    /** Called once a frame with the latest of all changes; what is slow waits for the rest. */
    whenMoved: (listener) => onFrame.push(listener),
    whenAtRest: (listener) => onRest.push(listener),

    /**
     * Goes to another moment or place. A session's bounds hold, and so does a player's place.
     * @returns {{ok: boolean, error?: string, held?: "from"|"to"|"place"}} where it was held back;
     * an error leaves all as it is.
     */
    change(next) {
      const wanted = { ...state, ...next };
      let held;
      if (session.isForPlayers) {
        held = isSamePlace(wanted, session.place) ? undefined : "place";
        Object.assign(wanted, session.place);
      }
      if (wanted.baseTime < session.from) {
        wanted.baseTime = session.from;
        held = "from";
      } else if (wanted.baseTime > session.to) {
        wanted.baseTime = session.to;
        held = "to";
      }
      const read = engine.moment({ moment: wanted.baseTime, lat: wanted.lat, long: wanted.long });
      if (!read.ok) {
        return read;
      }
      Object.assign(state, wanted);
      reading = read.value;
      sky.refresh();
      return { ok: true, held };
    },
    /** Draws anew what is shown, as after another view was opened. */
    refresh() {
      frame ||= requestAnimationFrame(drawFrame);
      restSoon();
    },
    /** A finger or the clock moves it: until as many releases nothing is at rest. */
    hold() {
      holders += 1;
      clearTimeout(rest);
    },
    release() {
      holders -= 1;
      restSoon();
    },
  };
  return sky;
}
