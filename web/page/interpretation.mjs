// The horoscope's panel as text one can read on a phone: the same lines under the same headings.
import { byId, make } from "./elements.mjs";

/** Behind which heading the keep stands. */
const beforeKeep = "Planetary Influences";

function lineOf({ subject, code, body_part: bodyPart, sign, verdict, color }) {
  const term = make("dt", {}, subject);
  if (color) {
    const chip = make("i", { className: "dot" });
    chip.style.background = color;
    term.prepend(chip);
  }
  const aside = [code, bodyPart].filter(Boolean).join(", ");
  if (aside) {
    term.append(make("small", {}, aside));
  }
  const said = [sign, verdict]
    .filter(Boolean)
    .map((text) => make("span", {}, text.replace(/ +/g, " ")));
  return make("div", {}, term, make("dd", {}, ...said));
}

/** Lines in their order, those of one heading together: [[heading, lines], ...]. */
function blocksOf(lines) {
  const blocks = new Map();
  for (const line of lines) {
    blocks.set(line.heading, [...(blocks.get(line.heading) ?? []), line]);
  }
  return [...blocks];
}

export function showInterpretation(engine, sky) {
  const read = engine.interpretation(sky.asked);
  if (!read.ok) {
    byId("interpretation").replaceChildren(make("p", { className: "error" }, read.error));
    return;
  }
  const parts = [];
  for (const [heading, lines] of blocksOf(read.value.lines)) {
    parts.push(
      make(
        "section",
        { className: "reading" },
        make("h3", {}, heading),
        make("dl", {}, ...lines.map(lineOf)),
      ),
    );
    if (heading === beforeKeep) {
      parts.push(make("p", { className: "keep", id: "keep" }, read.value.keep));
    }
  }
  byId("interpretation").replaceChildren(...parts);
}
