// What happens from the local noon before the moment to the next: the evening, the night, the morning.
import { byId, make, say } from "./elements.mjs";
import { isLocal } from "./moment_fields.mjs";

const noon = 12;

/** The noon of the place's clock at or before the moment. */
function noonBefore(sky) {
  const hour = sky.reading.local?.hour ?? noon;
  return sky.baseTime - ((hour - noon + 24) % 24) / 24;
}

const clockOf = (event) => (isLocal() ? event.local_clock : event.date?.split("T")[1]);

function line(event, goTo) {
  const seen = event.seen ? "seen" : "not seen";
  const button = make(
    "button",
    {
      type: "button",
      className: "event",
      "data-kind": event.kind,
      onclick: () => goTo(event.base_time_days),
    },
    make("time", {}, clockOf(event) ?? ""),
    make("span", { className: "what" }, event.description),
    make("span", { className: `seen ${event.seen ? "yes" : "no"}` }, seen),
  );
  return make("li", { className: event.seen ? "" : "unseen" }, button);
}

/** The line between what has been and what is to come. */
const nowLine = (sky) =>
  make(
    "li",
    { className: "now" },
    `Now, ${(isLocal() ? sky.reading.local : sky.reading.standard)?.date.split("T")[1] ?? ""}`,
  );

export function startTonight(engine, sky, isOpen, goTo) {
  const { session } = sky;
  const onlySeen = byId("only-seen");
  let found = { key: "" };

  function events(from) {
    const key = `${from.toFixed(4)};${sky.lat},${sky.long}`;
    if (found.key !== key) {
      const read = engine.events({ from, to: from + 1, place: { lat: sky.lat, long: sky.long } });
      found = { key, read };
    }
    return found.read;
  }

  function show() {
    if (!isOpen()) {
      return;
    }
    const from = noonBefore(sky);
    const read = events(from);
    if (!read.ok) {
      byId("events").replaceChildren(make("li", { className: "error" }, read.error));
      return;
    }
    const shown = read.value.events.filter(
      ({ base_time_days: at, seen }) =>
        at >= session.from && at <= session.to && (seen || !onlySeen.checked),
    );
    const lines = shown.map((event) => line(event, goTo));
    const next = shown.findIndex((event) => event.base_time_days > sky.baseTime + 1e-9);
    lines.splice(next < 0 ? lines.length : next, 0, nowLine(sky));
    byId("events").replaceChildren(...lines);
    byId("no-events").hidden = shown.length > 0;
    const date = (at) => engine.moment({ ...sky.asked, moment: at }).value?.local;
    const [begin, end] = [date(from), date(from + 1)];
    const clock = isLocal() ? "local" : "standard";
    const words =
      begin && end
        ? `From local noon of ${begin.day} ${begin.month_name} to that of ${end.day} ` +
          `${end.month_name} ${end.year}, in ${clock} time.`
        : "";
    say(byId("tonight-span"), words);
  }
  onlySeen.addEventListener("change", show);
  sky.whenAtRest(show);
}
