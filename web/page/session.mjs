// What the page was made for: `veyruna page` writes bounds, place, title and whether it is for players.
import { byId } from "./elements.mjs";

const wendmark = { lat: 40.5, long: -20.9 };
const firstMoment = "720-06-12T22:30";

/** The moment as days, of either of the two forms in which a session may have it; else the `otherwise`. */
function bound(engine, days, date, otherwise) {
  if (typeof days === "number") {
    return days;
  }
  const reading = date === undefined ? { ok: false } : engine.moment({ moment: date, ...wendmark });
  return reading.ok ? reading.value.base_time : otherwise;
}

/** The session with all its members: `from` and `to` are days and may be infinite. */
export function readSession(engine) {
  const asked = JSON.parse(byId("session").textContent);
  const from = bound(engine, asked.from_base_time, asked.from, -Infinity);
  const to = bound(engine, asked.to_base_time, asked.to, Infinity);
  const hasPlace = typeof asked.lat === "number" && typeof asked.long === "number";
  const opening = engine.moment({ moment: firstMoment, ...wendmark }).value.base_time;
  return {
    title: asked.title ?? "",
    from,
    to,
    isBounded: from > -Infinity || to < Infinity,
    isForPlayers: asked.player === true,
    placeName: asked.place ?? "",
    place: hasPlace ? { lat: asked.lat, long: asked.long } : wendmark,
    baseTime: Number.isFinite(from) ? from : Math.min(asked.base_time ?? opening, to),
  };
}
