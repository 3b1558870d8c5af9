// Pointing and tapping: every mark of a chart answers with its own lines, or lies under another that does.

import assert from "node:assert/strict";

import { desk, engine, evening, pageTests, phone, show, textOf } from "./sky_page.mjs";

const sky = { moment: "720-06-12T22:30", lat: "40.5N", long: "20.9W" };
const reach = 25; // pixels from a mark at which it still answers

async function marksOf(chart) {
  const { value } = (await engine()).marks(chart, sky);
  return value.marks.filter(
    ({ kind, dots, letters }) => kind !== "panel_line" && dots.length + letters.length > 0,
  );
}

/** The middle of what stands for a mark, in the chart's units. */
const middle = ({ dots, letters }) => {
  const [x1, y1, x2, y2] = dots[0] ?? letters[0];
  return { x: (x1 + x2) / 2, y: (y1 + y2) / 2 };
};

/** Where units of the chart are in the view, in pixels; null where they are not seen. */
const pixelsOf = (page, chart, units) =>
  page.evaluate(
    (chart, units) => {
      const sheet = document.querySelector(`#${chart} svg.sheet`);
      const box = document.querySelector(`#${chart}`).getBoundingClientRect();
      const matrix = sheet.getScreenCTM();
      return units.map(({ x, y }) => {
        const at = new DOMPoint(x, y).matrixTransform(matrix);
        const inside = at.x > box.left && at.x < box.right && at.y > box.top && at.y < box.bottom;
        return inside ? { x: at.x, y: at.y } : null;
      });
    },
    chart,
    units,
  );

/** The lines of the card that answers. */
const answer = (page, chart) =>
  page.evaluate((chart) => {
    const card = document.querySelector(`#${chart}-read-out`);
    return card.checkVisibility() ? [...card.children].map((line) => line.textContent) : [];
  }, chart);

/** How far a point is from any of a mark's stretches, in units. */
function away(mark, { x, y }) {
  const distances = [...mark.dots, ...mark.letters].map(([x1, y1, x2, y2, radius]) => {
    const length = Math.hypot(x2 - x1, y2 - y1);
    const along = length === 0 ? 0 : ((x - x1) * (x2 - x1) + (y - y1) * (y2 - y1)) / length ** 2;
    const part = Math.max(0, Math.min(1, along));
    return Math.hypot(x - x1 - part * (x2 - x1), y - y1 - part * (y2 - y1)) - radius;
  });
  return Math.min(...distances);
}

pageTests("pointing", (test) => {
  for (const [tab, chart] of [
    ["Star map", "star-map"],
    ["Horoscope", "horoscope"],
  ]) {
    test(`at every mark of the ${tab} has an answer`, async (open) => {
      const marks = await marksOf(chart);
      assert.ok(marks.length > 20, `${marks.length} marks`);
      const page = await open({ width: 1280, height: 1100 });
      await show(page, tab);
      const places = await pixelsOf(page, chart, marks.map(middle));
      const pixels = await page.evaluate(
        (chart) => document.querySelector(`#${chart} svg.sheet`).getScreenCTM().a,
        chart,
      );
      const covered = [];
      const faults = [];
      for (const [index, mark] of marks.entries()) {
        const at = places[index];
        if (!at) {
          faults.push(`${mark.name} is not in the view`);
          continue;
        }
        await page.hands.point(at.x, at.y);
        const [name] = await answer(page, chart);
        if (name === mark.read_out[0]) continue;
        const other = marks.filter((one) => one.read_out[0] === name);
        const near = other.some((one) => away(one, middle(mark)) * pixels <= reach);
        if (!near) faults.push(`${mark.name} is answered by ${name}`);
        else covered.push(mark);
      }
      assert.equal(faults.join("\n"), "");
      assert.ok(
        covered.length < marks.length / 2,
        `${covered.length} of ${marks.length} lie under others`,
      );
    });
  }

  test("tells the name and figures of what is tapped, to the eye and to the ear", async (open) => {
    const marks = await marksOf("star-map");
    const page = await open(phone);
    for (const mark of marks.filter(({ kind }) => kind === "body")) {
      const [at] = await pixelsOf(page, "star-map", [middle(mark)]);
      await page.hands.tap(at.x, at.y);
      const lines = await page.until(
        `${mark.name} answers`,
        (name) => {
          const card = document.querySelector("#star-map-read-out");
          const lines = [...card.children].map((line) => line.textContent);
          return card.checkVisibility() && lines[0] === name && lines;
        },
        mark.read_out[0],
      );
      assert.equal(lines.length, mark.read_out.length);
      assert.equal(await textOf(page, "#spoken-mark"), mark.spoken);
      // A card that runs out of the view cannot be read.
      const card = await (await page.select("#star-map-read-out")).box();
      assert.ok(card.left >= 0 && card.left + card.width <= phone.width, JSON.stringify(card));
      // A second tap within a moment would enlarge.
      await page.evaluate(() => new Promise((later) => setTimeout(later, 400)));
    }
  });

  test("lets the card go when the pointer does", async (open) => {
    const marks = await marksOf("star-map");
    const page = await open(desk);
    const [at] = await pixelsOf(page, "star-map", [
      middle(marks.find(({ kind }) => kind === "body")),
    ]);
    await page.hands.point(at.x, at.y);
    assert.notDeepEqual(await answer(page, "star-map"), []);
    await page.hands.point(5, 5);
    await page.until(
      "the card is gone",
      () => !document.querySelector("#star-map-read-out").checkVisibility(),
    );
  });

  for (const [tab, chart] of [
    ["Star map", "star-map"],
    ["Horoscope", "horoscope"],
  ]) {
    test(`walks over the ${tab} by arrows, each mark told, and leaves by Esc`, async (open) => {
      const marks = await marksOf(chart);
      const told = new Map(marks.map((mark) => [mark.spoken, mark]));
      const page = await open(desk, { hash: evening });
      await show(page, tab);
      await (await page.select(`#${chart}`)).focus();
      const met = new Set();
      const turns = ["ArrowRight", "ArrowDown", "ArrowLeft", "ArrowUp"];
      for (let step = 0; step < 40; ++step) {
        await page.hands.key(turns[Math.floor(step / 10)]);
        const spoken = await textOf(page, "#spoken-mark");
        assert.ok(told.has(spoken), spoken);
        assert.equal((await answer(page, chart))[0], told.get(spoken).read_out[0]);
        met.add(spoken);
      }
      assert.ok(met.size >= 8, `${met.size} marks met`);
      await page.hands.key("Escape");
      assert.deepEqual(await answer(page, chart), []);
      await page.hands.key("Tab");
      assert.notEqual(await page.evaluate(() => document.activeElement.id), chart);
    });
  }
});
