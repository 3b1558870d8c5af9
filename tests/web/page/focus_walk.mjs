// A walk through a page by Tab alone: where it comes by, what it misses and where nothing shows it.

/** In the page: a short name of the element that has the focus, "" for none. */
function atFocus() {
  const element = document.activeElement;
  if (!element || element === document.body || element === document.documentElement) return null;
  globalThis.walked ??= new Map();
  if (!walked.has(element)) walked.set(element, walked.size);
  const style = getComputedStyle(element);
  const box = element.getBoundingClientRect();
  // "auto" is the browser's own ring.
  const ring = style.outlineStyle;
  const outlined = ring === "auto" || (ring !== "none" && parseFloat(style.outlineWidth) >= 2);
  // Of what is in the view the middle must not lie under something else.
  const isSeen = ({ left, top, right, bottom }) => {
    const x = (Math.max(left, 0) + Math.min(right, innerWidth)) / 2;
    const y = (Math.max(top, 0) + Math.min(bottom, innerHeight)) / 2;
    const met = document.elementFromPoint(x, y);
    return (
      right > 0 &&
      bottom > 0 &&
      left < innerWidth &&
      top < innerHeight &&
      met !== null &&
      (element.contains(met) || met.closest("label")?.control === element)
    );
  };
  return {
    number: walked.get(element),
    name: `<${element.localName} ${element.id ? `#${element.id}` : element.className}> "${
      element.getAttribute("aria-label") ??
      element.textContent.trim().replace(/\s+/g, " ").slice(0, 30)
    }"`,
    seen: outlined || style.boxShadow !== "none",
    inView: isSeen(box),
  };
}

/** In the page: how each control that Tab should come by is called, among them those it came by. */
function missedByWalk() {
  const walked = globalThis.walked ?? new Map();
  const controls = "a[href], button, input, select, textarea, summary, [tabindex]";
  const groups = new Set();
  const missed = [];
  for (const element of document.querySelectorAll(controls)) {
    if (element.matches(":disabled, [tabindex='-1'], [inert] *") || element.type === "hidden")
      continue;
    if (!element.checkVisibility({ visibilityProperty: true })) continue;
    // Of a group of radio buttons Tab meets the chosen one; arrows do the rest.
    const group = element.type === "radio" && element.name;
    if (group) {
      const some = [...document.getElementsByName(element.name)].some((one) => walked.has(one));
      if (some || groups.has(group)) continue;
      groups.add(group);
    }
    if (!walked.has(element)) missed.push(element.outerHTML.slice(0, 100));
  }
  return missed;
}

/** Walks until the page is left at its end. `back` with Shift. Gives {steps, faults}. */
export async function walk(page, { back = false } = {}) {
  await page.evaluate(
    (where) => {
      delete globalThis.walked;
      // A walk begins where the focus was lost.
      const begin = document.createElement("span");
      begin.tabIndex = -1;
      document.body[where](begin);
      begin.focus();
      begin.remove();
    },
    back ? "append" : "prepend",
  );
  const steps = [];
  const faults = [];
  const all = await page.evaluate(() => document.querySelectorAll("*").length);
  for (;;) {
    await page.hands.key("Tab", ...(back ? ["Shift"] : []));
    const at = await page.evaluate(atFocus);
    if (!at || at.number < steps.length) {
      // The end: out of the page, or round to its beginning.
      if (at && at.number !== 0) faults.push(`Tab is caught at ${at.name}`);
      break;
    }
    if (!at.seen) faults.push(`nothing shows that ${at.name} has the focus`);
    if (!at.inView) faults.push(`${at.name} has the focus where it is not seen`);
    steps.push(at.name);
    if (steps.length > all) throw new Error("Tab does not come to an end");
  }
  for (const missed of await page.evaluate(missedByWalk))
    faults.push(`Tab does not come by ${missed}`);
  return { steps, faults };
}
