// Where the bodies stand, as a table, and the next moons.
import { byId, make } from "./elements.mjs";
import { compassPoint, degrees } from "./words.mjs";

/** The rows of the positions document: [body, azimuth, altitude, ecliptic longitude, sign]. */
const rowsOf = (text, headingLines) =>
  text
    .trimEnd()
    .split("\n")
    .slice(headingLines)
    .map((line) => line.trim().split(/ +/));

/** Each with the figure that stands under its words. */
const headings = [["Body"], ["Altitude"], ["Direction", "azimuth"], ["Sign", "ec. long."]];

export function showPositions(engine, sky, eyes) {
  const about = engine.documents.find(({ document }) => document === "positions");
  const text = engine.document("positions", sky.asked);
  if (!text.ok) {
    return;
  }
  const day = eyes.isDay();
  const rows = rowsOf(text.value, about.columnHeadingLines).filter(([body, , altitude]) =>
    eyes.seesBody(body, !altitude.startsWith("-"), day),
  );
  const head = headings.map(([name, under]) =>
    make("th", { scope: "col" }, name, ...(under ? [" ", make("small", {}, under)] : [])),
  );
  const body = rows.map(([name, azimuth, altitude, longitude, signName]) =>
    make(
      "tr",
      { className: altitude.startsWith("-") ? "below" : "above" },
      make("th", { scope: "row" }, make("i", { className: `dot ${name.toLowerCase()}` }), name),
      make("td", {}, degrees(altitude)),
      make("td", {}, compassPoint(azimuth), " ", make("small", {}, degrees(azimuth))),
      make("td", {}, signName, " ", make("small", {}, degrees(longitude))),
    ),
  );
  const none = make("tr", {}, make("td", { colSpan: 4 }, "None of the bodies can be seen."));
  byId("positions").replaceChildren(
    make("thead", {}, make("tr", {}, ...head)),
    make("tbody", {}, ...(body.length > 0 ? body : [none])),
  );
}

/** The next full and new moon, each a way to its moment. */
export function showMoons(engine, sky, goTo) {
  const read = engine.record("moment", sky.asked);
  if (!read.ok) {
    return;
  }
  const [moons] = read.value.moments;
  for (const [id, name, moon] of [
    ["full-moon", "Full moon", "next_full_moon"],
    ["new-moon", "New moon", "next_new_moon"],
  ]) {
    const date = moons[`${moon}_date`]?.replace("T", " ") ?? "";
    const button = byId(id);
    button.replaceChildren(
      make("b", {}, name),
      make("span", {}, date),
      make("span", { className: "quiet" }, `local ${moons[`${moon}_local_clock`]}`),
    );
    button.onclick = () => goTo(moons[`${moon}_base_time_days`]);
  }
}
