// Year, month, day and clock: typed, chosen and stepped.
import { byId, complain, make, markInvalid } from "./elements.mjs";
import { heldWords, notify } from "./notices.mjs";
import { whenPressed } from "./pressed.mjs";
import { clockWords } from "./words.mjs";

const daysOf = { year: 360, month: 30, day: 1, clock: 1 / 24 };
const monthLength = 30;

const two = (number) => String(number).padStart(2, "0");

/** "2230" is quicker on a phone than "22:30". */
const withColon = (clock) =>
  clock
    .trim()
    .replace(/^(\d{1,2})(\d\d)$/, "$1:$2")
    .replace(/^(\d):/, "0$1:");

export function startMomentFields(engine, sky) {
  const fields = Object.fromEntries(Object.keys(daysOf).map((id) => [id, byId(id)]));
  const { year, month, day, clock } = fields;
  const local = byId("local-clock");
  const error = byId("moment-error");
  let isTyping = false;

  month.append(...engine.months.map((name, index) => make("option", { value: index + 1 }, name)));
  for (let number = 1; number <= monthLength; number += 1) {
    day.append(make("option", {}, String(number)));
  }

  const typedDate = (time) =>
    `${year.value.trim()}-${two(month.value || 1)}-${two(day.value || 1)}T${time}`;
  const read = (moment) => engine.moment({ ...sky.asked, moment, local: local.checked });

  /** Marks the field that is to blame for the text: the clock, where the day has a noon. */
  function blame(text = "") {
    const isClock = text !== "" && read(typedDate("12:00")).ok;
    markInvalid(clock, isClock);
    markInvalid(year, text !== "" && !isClock);
    complain(error, text);
  }

  function show() {
    if (isTyping) {
      return;
    }
    blame();
    const reading = local.checked ? sky.reading.local : sky.reading.standard;
    for (const field of Object.values(fields)) {
      field.disabled = !reading && field.tagName === "SELECT";
    }
    year.value = reading?.year ?? "";
    month.value = reading?.month ?? "";
    day.value = reading?.day ?? "";
    clock.value = clockWords(reading);
  }

  function goTo(baseTime) {
    const changed = sky.change({ baseTime });
    blame(changed.ok ? "" : changed.error);
    notify(heldWords(sky, changed.held));
  }

  function apply() {
    isTyping = false;
    const asked = read(typedDate(withColon(clock.value)));
    if (asked.ok) {
      goTo(asked.value.base_time);
      show();
    } else {
      blame(asked.error);
    }
  }

  for (const [id, days] of Object.entries(daysOf)) {
    fields[id].addEventListener("input", () => (isTyping = fields[id].tagName === "INPUT"));
    fields[id].addEventListener("change", apply);
    const step = (direction) => () => {
      isTyping = false;
      goTo(sky.baseTime + direction * days);
    };
    whenPressed(byId(`${id}-earlier`), sky, step(-1));
    whenPressed(byId(`${id}-later`), sky, step(1));
  }
  byId("moment-form").addEventListener("submit", (event) => {
    event.preventDefault();
    apply();
  });
  local.addEventListener("change", () => {
    isTyping = false;
    blame();
    sky.refresh();
  });
  sky.whenMoved(show);
}

/** Whether dates and clocks are shown as those of the place. */
export const isLocal = () => byId("local-clock").checked;
