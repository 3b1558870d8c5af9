// What is wrong with how a page is laid out in its present view: what sticks out, what is cut and what
// lies under something else. One line each, empty where all is well.

/** Runs in the page. A chart's own marks are the chart's affair; its box is looked at as all others. */
function faultsOfLayout() {
  const faults = [];
  const words = (element) => {
    const name = element.id
      ? `#${element.id}`
      : `${element.className?.baseVal ?? element.className}`;
    const text = (element.textContent ?? "").trim().replace(/\s+/g, " ").slice(0, 40);
    return `<${element.localName} ${name}> "${text}"`;
  };
  const root = document.documentElement;
  if (root.scrollWidth > root.clientWidth) {
    faults.push(`the document is ${root.scrollWidth} wide in a view of ${root.clientWidth}`);
  }

  // What only screen readers are told of is clipped to a point, on purpose.
  const onlySpoken = (element) => {
    for (let at = element; at; at = at.parentElement) {
      const { width, height } = at.getBoundingClientRect();
      const style = getComputedStyle(at);
      const hides =
        style.clipPath !== "none" || style.clip !== "auto" || style.overflow !== "visible";
      if (hides && width <= 1 && height <= 1) return true;
    }
    return false;
  };
  const scrolls = (style, axis) => ["auto", "scroll"].includes(style[`overflow${axis}`]);
  const shown = (element) =>
    element.checkVisibility({ opacityProperty: true, visibilityProperty: true }) &&
    element.getClientRects().length > 0 &&
    !element.parentElement?.closest("svg") &&
    !onlySpoken(element);
  const scrolledAside = (element) => {
    for (let at = element.parentElement; at; at = at.parentElement) {
      if (at !== root && at !== document.body && scrolls(getComputedStyle(at), "X")) return true;
    }
    return false;
  };

  const arrow = 20; // pixels that a browser gives a select for its sign

  const all = [...document.body.querySelectorAll("*")].filter(shown);
  for (const element of all) {
    const box = element.getBoundingClientRect();
    const style = getComputedStyle(element);
    // Only the wide tables of figures are looked through from side to side.
    const aside = scrolls(style, "X") && element.scrollWidth > element.clientWidth;
    if (aside && element.id !== "table-box") faults.push(`${words(element)} scrolls sideways`);
    const sticksOut = box.left < -0.5 || box.right > root.clientWidth + 0.5;
    if (sticksOut && box.width > 0 && !scrolledAside(element)) {
      faults.push(
        `${words(element)} reaches from ${box.left} to ${box.right} of ${root.clientWidth}`,
      );
    }
    if (element.localName === "svg" || element.closest("svg")) continue;
    // A field scrolls what is typed into it.
    const field = ["input", "textarea"].includes(element.localName);
    const cut = (axis, inner, outer) =>
      ["hidden", "clip"].includes(style[`overflow${axis}`]) && inner > outer + 1;
    if (!field && element.textContent.trim() !== "") {
      if (cut("X", element.scrollWidth, element.clientWidth))
        faults.push(`${words(element)} is cut at its side`);
      if (cut("Y", element.scrollHeight, element.clientHeight))
        faults.push(`${words(element)} is cut below`);
    }
    if (field && element.value !== "" && element.scrollWidth > element.clientWidth + 1) {
      faults.push(`${words(element)} does not show all of "${element.value}"`);
    }
    if (element.localName === "select") {
      const measure = document.createElement("canvas").getContext("2d");
      measure.font = `${style.fontWeight} ${style.fontSize} ${style.fontFamily}`;
      const room =
        element.clientWidth -
        parseFloat(style.paddingLeft) -
        parseFloat(style.paddingRight) -
        arrow;
      const tooLong = [...element.options].find(
        ({ text }) => measure.measureText(text).width > room,
      );
      if (tooLong) faults.push(`<select #${element.id}> does not show all of "${tooLong.text}"`);
    }
  }

  /** From where to where the letters reach that are seen. */
  const lettersOf = (element) => {
    const reach = { left: Infinity, right: -Infinity };
    const texts = document.createTreeWalker(element, NodeFilter.SHOW_TEXT);
    while (texts.nextNode()) {
      if (onlySpoken(texts.currentNode.parentElement)) continue;
      const range = document.createRange();
      range.selectNodeContents(texts.currentNode);
      for (const { left, right } of range.getClientRects()) {
        reach.left = Math.min(reach.left, left);
        reach.right = Math.max(reach.right, right);
      }
    }
    return reach;
  };

  // Letters that run out of the box of their own element are over or under something else.
  for (const element of all) {
    if (
      element.localName === "svg" ||
      !element.matches("button, a, label, th, td, dt, dd, legend, summary")
    )
      continue;
    if (scrolledAside(element)) continue;
    const letters = lettersOf(element);
    const box = element.getBoundingClientRect();
    if (getComputedStyle(element).display === "inline") continue;
    if (letters.left < box.left - 1 || letters.right > box.right + 1) {
      faults.push(`${words(element)}: its letters are wider than its box`);
    }
  }

  // A word that has no room is broken anywhere.
  const letters = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
  while (letters.nextNode()) {
    const { currentNode } = letters;
    const parent = currentNode.parentElement;
    if (parent.closest("svg, script, style") || !shown(parent)) continue;
    for (const { 0: word, index } of currentNode.data.matchAll(/[\p{L}\p{N}]+/gu)) {
      const range = document.createRange();
      range.setStart(currentNode, index);
      range.setEnd(currentNode, index + word.length);
      const lines = new Set([...range.getClientRects()].map(({ top }) => Math.round(top)));
      if (lines.size > 1) faults.push(`${words(parent)}: "${word}" is broken`);
    }
  }

  // Each control must be what a finger meets in its middle, once scrolled to.
  const controls = "a[href], button, input, select, textarea, summary, [role=tab], [role=button]";
  const scrolled = [...document.querySelectorAll("*")].map((one) => [
    one,
    one.scrollLeft,
    one.scrollTop,
  ]);
  for (const element of all.filter((one) => one.matches(controls) && !one.disabled)) {
    element.scrollIntoView({ block: "center", inline: "center", behavior: "instant" });
    // A way round that comes into view with the focus.
    if (element.getBoundingClientRect().bottom <= 0) element.focus();
    const [box] = element.getClientRects();
    const met = document.elementFromPoint(box.left + box.width / 2, box.top + box.height / 2);
    const own =
      met &&
      (element.contains(met) || met.contains(element) || met.closest("label")?.control === element);
    if (!own)
      faults.push(`${words(element)} lies under ${met ? words(met) : "nothing that is seen"}`);
    else if (met !== element && met.contains(element) && met.localName !== "label") {
      const reachable = getComputedStyle(element).pointerEvents !== "none";
      if (reachable) faults.push(`${words(element)} lies under ${words(met)}`);
    }
  }
  document.activeElement?.blur();
  for (const [one, left, top] of scrolled) {
    if (one.scrollLeft !== left || one.scrollTop !== top)
      one.scrollTo({ left, top, behavior: "instant" });
  }
  return faults;
}

export function layoutFaults(page) {
  return page.evaluate(faultsOfLayout);
}
