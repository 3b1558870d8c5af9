// The address behind "#": "720-06-12T22:30;40.5N,20.9W". It follows the sky when it is at rest, and
// the sky follows it when someone else changes it.
import { notify, heldWords } from "./notices.mjs";

/** What the address asks for, as the engine takes it; what it leaves out is left out. */
function parts(hash) {
  let text = hash.slice(1);
  try {
    text = decodeURIComponent(text);
  } catch {
    // A lone "%" is no code; the engine says what is wrong with the text as it stands.
  }
  const [moment, place] = text.split(";");
  const asked = {};
  if (moment) {
    asked.moment = moment;
  }
  if (place !== undefined) {
    const comma = place.indexOf(",");
    asked.lat = comma < 0 ? place : place.slice(0, comma);
    asked.long = comma < 0 ? "" : place.slice(comma + 1);
  }
  return asked;
}

function follow(engine, sky) {
  if (location.hash.length < 2) {
    sky.refresh();
    return;
  }
  const read = engine.moment({ ...sky.asked, ...parts(location.hash) });
  if (!read.ok) {
    notify(`The address cannot be read: ${read.error}`);
    sky.refresh();
    return;
  }
  const { base_time: baseTime, lat, long } = read.value;
  const changed = sky.change({ baseTime, lat, long });
  notify(changed.ok ? heldWords(sky, changed.held) : changed.error);
}

function update(sky) {
  const address = `#${sky.reading.address}`;
  if (location.hash !== address) {
    try {
      history.replaceState(null, "", address);
    } catch {
      // A page inside another may not change its address; it works without.
    }
  }
}

export function startAddress(engine, sky) {
  follow(engine, sky);
  addEventListener("hashchange", () => follow(engine, sky));
  sky.whenAtRest(() => update(sky));
}
