// What the page has to say to a person: what could not be read, and where a session's bounds held.
import { byId, say } from "./elements.mjs";

const briefly = 4000; // milliseconds

/** Shows a sentence until it is closed or the next one; none takes it away. */
export function notify(text) {
  say(byId("notice-text"), text ?? "");
  byId("notice").hidden = !text;
}

/** The same for what went well: it leaves by itself. */
export function notifyBriefly(text) {
  notify(text);
  setTimeout(() => byId("notice-text").textContent === text && notify(), briefly);
}

/** A sentence to hear, and not to see. */
export const tell = (text) => say(byId("told"), text);

/** Which bound held the sky back; empty where none did. */
export function heldWords(sky, held) {
  const { session } = sky;
  if (held === "place") {
    return "The place of this session is fixed.";
  }
  if (held) {
    const end = held === "from" ? "begins" : "ends";
    const date = sky.reading.standard?.date.replace("T", " ") ?? `day ${session[held]}`;
    return `This session ${end} at ${date}.`;
  }
  return "";
}

export function startNotices() {
  byId("notice-close").onclick = () => notify();
}
