// Day, dusk and night along the time bar, so that a finger finds the dark.

const samples = 72;
/** The sun's altitude in degrees, from which on a colour holds; between them they blend. */
const colours = [
  [-18, [58, 46, 110]],
  [-7, [112, 70, 134]],
  [-1, [226, 138, 84]],
  [5, [242, 200, 122]],
  [14, [138, 190, 232]],
];

function colourOf(altitude) {
  const next = colours.findIndex(([from]) => from > altitude);
  if (next <= 0) {
    return colours.at(next === 0 ? 0 : -1)[1];
  }
  const [[low, dark], [high, light]] = [colours[next - 1], colours[next]];
  const share = (altitude - low) / (high - low);
  return dark.map((part, index) => Math.round(part + share * (light[index] - part)));
}

/** Colours the bar anew whenever the sky is at rest; `span()` says what {begin, days} it covers. */
export function startDaylight(engine, sky, bar, span) {
  let shown = "";
  sky.whenAtRest(() => {
    const { begin, days } = span();
    const key = `${begin.toFixed(3)};${days};${sky.lat},${sky.long}`;
    if (key === shown) {
      return;
    }
    shown = key;
    const stops = [];
    for (let index = 0; index <= samples; index += 1) {
      const moment = begin + (days * index) / samples;
      const read = engine.record("positions", { ...sky.asked, moment });
      const sun = read.ok && read.value.positions.find(({ body }) => body === "thessil");
      if (!sun) {
        return;
      }
      stops.push(`rgb(${colourOf(sun.altitude_degrees).join(" ")})`);
    }
    bar.style.setProperty("--light", `linear-gradient(to right, ${stops.join(", ")})`);
  });
}
