// Which part of a chart is seen: pure arithmetic. A framing is {scale, x, y}: pixels per unit of the
// chart, and the unit in the middle of the view. A box is {x, y, size}, a view {width, height}.

export const greatestZoom = 16;

export const fittingScale = (box, view) =>
  Math.max(Math.min(view.width, view.height) / box.size, 1e-3);

/** The middle along one side: held so that no more than needed beside the box is seen. */
function heldIn(at, from, size, seen) {
  const margin = Math.min(seen, size) / 2;
  return Math.min(Math.max(at, from + margin), from + size - margin);
}

/** The same framing within what is allowed. */
export function held(framing, box, view) {
  const fit = fittingScale(box, view);
  const scale = Math.min(Math.max(framing.scale, fit), fit * greatestZoom);
  return {
    scale,
    x: heldIn(framing.x, box.x, box.size, view.width / scale),
    y: heldIn(framing.y, box.y, box.size, view.height / scale),
  };
}

export const whole = (box, view) =>
  held({ scale: 0, x: box.x + box.size / 2, y: box.y + box.size / 2 }, box, view);

/** The unit of the chart under a point of the view, in pixels from its top left corner. */
export const unitAt = (framing, view, point) => ({
  x: framing.x + (point.x - view.width / 2) / framing.scale,
  y: framing.y + (point.y - view.height / 2) / framing.scale,
});

export const pointOf = (framing, view, unit) => ({
  x: view.width / 2 + (unit.x - framing.x) * framing.scale,
  y: view.height / 2 + (unit.y - framing.y) * framing.scale,
});

/** `factor` times as large, with what was under `from` now under `to`. */
export function zoomed(framing, box, view, factor, from, to = from) {
  const under = unitAt(framing, view, from);
  const fit = fittingScale(box, view);
  const scale = Math.min(Math.max(framing.scale * factor, fit), fit * greatestZoom);
  return held(
    {
      scale,
      x: under.x - (to.x - view.width / 2) / scale,
      y: under.y - (to.y - view.height / 2) / scale,
    },
    box,
    view,
  );
}

export const viewBox = (framing, view) =>
  [
    framing.x - view.width / 2 / framing.scale,
    framing.y - view.height / 2 / framing.scale,
    view.width / framing.scale,
    view.height / framing.scale,
  ].join(" ");
