// Charts enlarged and moved: by pinch, wheel, keys, buttons and double tap; what is under a finger stays there.

import assert from "node:assert/strict";

import { desk, pageTests, phone, show } from "./sky_page.mjs";

/** {x, y, width, height} of the part that is seen, in the chart's units, and the chart's box on the screen. */
const seen = async (page, chart) => {
  await page.painted();
  return page.evaluate((chart) => {
    const sheet = document.querySelector(`#${chart} svg.sheet`);
    const { x, y, width, height } = sheet.viewBox.baseVal;
    const box = sheet.getBoundingClientRect();
    return {
      x,
      y,
      width,
      height,
      left: box.left,
      top: box.top,
      right: box.right,
      bottom: box.bottom,
    };
  }, chart);
};

/** The chart's unit under a point of the view. */
const unitAt = (part, point) => ({
  x: part.x + ((point.x - part.left) / (part.right - part.left)) * part.width,
  y: part.y + ((point.y - part.top) / (part.bottom - part.top)) * part.height,
});

const middleOf = (part) => ({ x: (part.left + part.right) / 2, y: (part.top + part.bottom) / 2 });

const isNear = (one, other, within) => Math.hypot(one.x - other.x, one.y - other.y) <= within;

/** Nothing else than the chart is enlarged or moved. */
async function onlyTheChart(page) {
  const { scale, x, y } = await page.evaluate(() => ({
    scale: visualViewport.scale,
    x: scrollX,
    y: scrollY,
  }));
  assert.deepEqual([scale, x, y], [1, 0, 0]);
}

pageTests("charts", (test) => {
  for (const [tab, chart] of [
    ["Star map", "star-map"],
    ["Horoscope", "horoscope"],
  ]) {
    test(`${tab} is pinched, the sky staying under the fingers`, async (open) => {
      const page = await open(phone);
      await show(page, tab);
      const before = await seen(page, chart);
      const { x, y } = middleOf(before);
      const at = { x: x + 30, y: y - 20 };
      await page.hands.pinch(at.x, at.y, { from: 60, to: 180 }, async () => {
        const during = await seen(page, chart);
        assert.ok(
          Math.abs(before.width / during.width - 3) < 0.1,
          `${before.width / during.width}`,
        );
        assert.ok(
          isNear(unitAt(before, at), unitAt(during, at), 2),
          "what was between the fingers is there still",
        );
      });
      await onlyTheChart(page);
      const enlarged = await seen(page, chart);
      await page.hands.pinch(at.x, at.y, { from: 200, to: 20 });
      const reduced = await seen(page, chart);
      assert.ok(enlarged.width < before.width && Math.abs(reduced.width - before.width) < 0.01);
      await onlyTheChart(page);
    });

    test(`${tab} is enlarged by the wheel, where the pointer is`, async (open) => {
      const page = await open(desk);
      await show(page, tab);
      const before = await seen(page, chart);
      const middle = middleOf(before);
      const at = { x: middle.x + 80, y: middle.y + 60 };
      for (let turn = 0; turn < 3; ++turn) await page.hands.wheel(at.x, at.y, { down: -120 });
      await page.until(
        "it is enlarged",
        (chart, width) =>
          document.querySelector(`#${chart} svg.sheet`).viewBox.baseVal.width < width / 2,
        chart,
        before.width,
      );
      assert.ok(isNear(unitAt(before, at), unitAt(await seen(page, chart), at), 1));
      await onlyTheChart(page);
    });

    test(`${tab} is enlarged by keys and buttons, and shown whole again`, async (open) => {
      const page = await open(desk);
      await show(page, tab);
      const { width } = await seen(page, chart);
      const now = async () => (await seen(page, chart)).width;
      await page.hands.key("+");
      const once = await now();
      assert.ok(once < width);
      await page.hands.key("+");
      assert.ok((await now()) < once);
      await page.hands.key("-");
      assert.ok(Math.abs((await now()) - once) < 1e-6);
      await page.hands.key("0");
      assert.ok(Math.abs((await now()) - width) < 1e-6);
      const press = async (name) => (await page.select(`#${chart}-${name}`)).press();
      await press("larger");
      assert.ok((await now()) < width);
      await press("whole");
      assert.ok(Math.abs((await now()) - width) < 1e-6);
      for (let time = 0; time < 20; ++time) await page.hands.key("+");
      assert.ok(width / (await now()) <= 16.01);
    });

    for (const size of [phone, desk]) {
      test(`${tab} moves with a drag, in every frame, and no farther than its end, at ${size.width} pixels`, async (open) => {
        const page = await open(size);
        await show(page, tab);
        const middle = middleOf(await seen(page, chart));
        const twice = { x: middle.x, y: middle.y };
        if (size.touch) await page.hands.pinch(twice.x, twice.y, { from: 50, to: 200 });
        else
          for (let turn = 0; turn < 4; ++turn)
            await page.hands.wheel(twice.x, twice.y, { down: -120 });
        const before = await seen(page, chart);
        const to = { x: middle.x - 60, y: middle.y + 45 };
        const drag = (from, to, meanwhile) =>
          size.touch ? page.hands.swipe(from, to, meanwhile) : page.hands.drag(from, to, meanwhile);
        await drag(middle, to, async () => {
          const during = await seen(page, chart);
          const pixel = during.width / (during.right - during.left);
          const slack = 16 * pixel; // what a finger may tremble before it drags
          assert.ok(
            isNear(unitAt(before, middle), unitAt(during, to), slack),
            "the sky is under the finger",
          );
          assert.ok(!isNear(during, before, 20 * pixel));
        });
        await onlyTheChart(page);
        // Far beyond the corner the chart's own corner is the end.
        for (let time = 0; time < 6; ++time) {
          await drag(
            { x: middle.x - 100, y: middle.y - 100 },
            { x: middle.x + 100, y: middle.y + 100 },
          );
        }
        const end = await seen(page, chart);
        assert.ok(end.x >= -11 && end.y >= -11, `${end.x} ${end.y}`);
      });
    }

    test(`${tab} is enlarged by a double tap`, async (open) => {
      const page = await open(phone);
      await show(page, tab);
      const before = await seen(page, chart);
      const { x, y } = middleOf(before);
      await page.hands.tap(x, y);
      await page.hands.tap(x, y);
      const { width } = await seen(page, chart);
      assert.ok(width < before.width, `${width}`);
    });
  }

  test("let one finger scroll the page while they are whole", async (open) => {
    const page = await open({ width: 320, height: 568, scale: 2, touch: true });
    const { x, y } = middleOf(await seen(page, "star-map"));
    await page.hands.swipe({ x, y: y + 60 }, { x, y: y - 140 });
    await page.until("the page has moved", () =>
      [document.scrollingElement, ...document.querySelectorAll("*")].some(
        (one) => one.scrollTop > 20,
      ),
    );
  });
});
