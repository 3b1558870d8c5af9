// Keys that mean the same wherever one is, except where one types or presses.
import { byId, takesKeys } from "./elements.mjs";

const zoomStep = 1.6;

/** Whether the key belongs to what has the focus, as Space belongs to a button. */
function isTaken({ key, target, ctrlKey, altKey, metaKey }) {
  const presses = key === " " && target.closest("button, summary");
  return ctrlKey || altKey || metaKey || presses || takesKeys(target);
}

/** `chart()` is the chart that is shown, if one is. */
export function startKeys(timeBar, chart) {
  const keys = {
    " ": (event) => timeBar.toggle(event.shiftKey ? -1 : 1),
    ",": () => timeBar.step(-1),
    ".": () => timeBar.step(1),
    "+": () => chart()?.zoomBy(zoomStep),
    "=": () => chart()?.zoomBy(zoomStep),
    "-": () => chart()?.zoomBy(1 / zoomStep),
    0: () => chart()?.zoomWhole(),
  };
  // Who speaks to the device types keys without meaning to, and can switch them off.
  const isMeant = (event) => byId("single-keys").checked || event.target.closest(".chart");
  addEventListener("keydown", (event) => {
    if (keys[event.key] && !isTaken(event) && isMeant(event)) {
      event.preventDefault();
      keys[event.key](event);
    }
  });
}
