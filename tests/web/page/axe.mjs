// What axe-core has to say of a page in its present state, by all of its rules.

import { readFileSync } from "node:fs";

const path = process.env.VEYRUNA_AXE;

/** Rules that are not asked, and why. */
const excluded = {
  // Seven to one, the strictest of three levels; what is plainly read (4.5 to 1) is asked for.
  "color-contrast-enhanced": true,
};

let source;

/** One line for each element that a rule finds fault with. */
export async function axeFaults(page) {
  // In a view so high that nothing need be scrolled: what lies under a bar only now is within reach.
  const { view } = page;
  const hidden = await page.evaluate(() =>
    [...document.querySelectorAll("*")]
      .filter(
        (one) =>
          ["auto", "scroll"].includes(getComputedStyle(one).overflowY) ||
          one === document.scrollingElement,
      )
      .map((one) => one.scrollHeight - one.clientHeight)
      .reduce((sum, one) => sum + one, 0),
  );
  await page.see({ ...view, height: view.height + hidden });
  try {
    return await faultsIn(page);
  } finally {
    await page.see(view);
  }
}

/** What cannot be read because of its colours. */
export async function contrastFaults(page) {
  const lines = await axeFaults(page);
  return lines.filter((line) => line.startsWith("color-contrast"));
}

async function faultsIn(page) {
  source ??= readFileSync(path, "utf8");
  // Not a script of the page: its content policy would not let one in.
  if (!(await page.evaluate(() => "axe" in globalThis)))
    await page.evaluateText(`${source};undefined`);
  return page.evaluate(async (excluded) => {
    const rules = {};
    for (const { ruleId } of axe.getRules()) rules[ruleId] = { enabled: !(ruleId in excluded) };
    const { violations, passes } = await axe.run(document, { rules, resultTypes: ["violations"] });
    const faults = violations.flatMap(({ id, help, nodes }) =>
      nodes.map(
        ({ target, failureSummary }) =>
          `${id} (${help}): ${target} ${failureSummary.replace(/\s+/g, " ")}`,
      ),
    );
    return passes.length > 10
      ? faults
      : [...faults, `only ${passes.length} rules had something to judge`];
  }, excluded);
}
