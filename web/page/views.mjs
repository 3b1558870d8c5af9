// The views behind the tabs, of which one is shown.
import { byId } from "./elements.mjs";

/** The tabs of these names; `opened(name)` is called for each that is opened. */
export function createViews(names, opened) {
  const tabs = names.map((name) => byId(`tab-${name}`));
  let shown = names[0];

  function open(name) {
    shown = name;
    for (const [index, tab] of tabs.entries()) {
      const isShown = names[index] === name;
      tab.setAttribute("aria-selected", isShown);
      tab.tabIndex = isShown ? 0 : -1;
      byId(`view-${names[index]}`).hidden = !isShown;
    }
    byId("panels").scrollTop = 0;
    document.documentElement.dataset.view = name;
    opened(name);
  }

  for (const [index, tab] of tabs.entries()) {
    tab.onclick = () => open(names[index]);
    tab.onkeydown = (event) => {
      const last = tabs.length - 1;
      const next = {
        ArrowLeft: index === 0 ? last : index - 1,
        ArrowRight: index === last ? 0 : index + 1,
        Home: 0,
        End: last,
      }[event.key];
      if (next !== undefined) {
        event.preventDefault();
        tabs[next].focus();
        open(names[next]);
      }
    };
  }
  // The address is the sky's, so it is no link.
  byId("skip").onclick = () => byId("views").focus();
  byId("tabs").hidden = tabs.length === 1;
  return {
    open,
    get shown() {
      return shown;
    },
  };
}

/** Takes away for good what a page does not show. */
export function removeViews(names) {
  for (const name of names) {
    byId(`tab-${name}`).remove();
    byId(`view-${name}`).remove();
  }
}
