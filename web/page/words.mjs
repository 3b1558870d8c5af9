// Figures and names as people read them.
import { isSamePlace } from "./sky.mjs";

const points = [
  "S",
  "SSW",
  "SW",
  "WSW",
  "W",
  "WNW",
  "NW",
  "NNW",
  "N",
  "NNE",
  "NE",
  "ENE",
  "E",
  "ESE",
  "SE",
  "SSE",
];

/** "-012:30" or ":20" of the documents as "−12° 30′"; their "164:60" is 165 degrees. */
export function degrees(text) {
  const [, minus, whole, minutes] = /^(-?)(\d*):(\d\d)$/.exec(text) ?? [];
  if (minutes === undefined) {
    return text;
  }
  const all = Number(whole) * 60 + Number(minutes);
  return `${minus ? "−" : ""}${Math.floor(all / 60)}° ${String(all % 60).padStart(2, "0")}′`;
}

/** Of the azimuth "128:47", which counts from south through west, the point of the compass. */
export function compassPoint(text) {
  const [whole, minutes] = text.split(":").map(Number);
  return points[Math.round((whole + minutes / 60) / 22.5) % 16];
}

/** Of the engine's reading of a clock "12 Felum 720", or how many days where there is no calendar. */
export function dateWords(reading) {
  return reading ? `${reading.day} ${reading.month_name} ${reading.year}` : "";
}

/** "22:30" of a reading of a clock. */
export const clockWords = (reading) => (reading ? reading.date.split("T")[1] : "");

/** The place's name where it has one, else its coordinates. */
export function placeWords(engine, sky) {
  const { session } = sky;
  const isAt = (place) => isSamePlace(place, sky);
  if (session.placeName && isAt(session.place)) {
    return session.placeName;
  }
  return engine.places.find(isAt)?.name ?? sky.reading.words;
}
