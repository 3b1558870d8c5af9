// What fingers, mouse and wheel do on a chart, told as what is meant: pan, zoom, tap, point.

/** A finger that moves less than this many pixels taps. */
const tapSlack = 9;
/** Two taps within this time, in milliseconds, and this far apart are one double tap. */
const doubleTapTime = 320;
const doubleTapSlack = 32;
const doubleTapZoom = 2.5;
const linePixels = 24;

/**
 * Listens to `host`. `meant` has pan(dx, dy), zoom(factor, from, to) which says whether anything
 * changed, tap(point, isTouch) and point(point or undefined); points are pixels within the host.
 */
export function startGestures(host, meant) {
  const fingers = new Map();
  let hasMoved = false;
  let lastTap = { at: -Infinity };

  const pointOf = (event) => {
    const corner = host.getBoundingClientRect();
    return { x: event.clientX - corner.left, y: event.clientY - corner.top };
  };
  const isOnControl = (event) => event.target.closest("button") !== null;

  function pinch(id, to) {
    const from = fingers.get(id);
    const other = [...fingers].find(([key]) => key !== id)[1];
    const reach = (point) => Math.max(Math.hypot(point.x - other.x, point.y - other.y), 1);
    const middle = (point) => ({ x: (point.x + other.x) / 2, y: (point.y + other.y) / 2 });
    meant.zoom(reach(to) / reach(from), middle(from), middle(to));
  }

  function tap(event, point) {
    const near = Math.hypot(point.x - lastTap.x, point.y - lastTap.y) < doubleTapSlack;
    if (near && event.timeStamp - lastTap.at < doubleTapTime) {
      lastTap = { at: -Infinity };
      if (!meant.zoom(doubleTapZoom, point, point)) {
        meant.zoom(0, point, point);
      }
      return;
    }
    lastTap = { ...point, at: event.timeStamp };
    meant.tap(point, event.pointerType !== "mouse");
  }

  host.addEventListener("pointerdown", (event) => {
    if (isOnControl(event) || event.button !== 0) {
      return;
    }
    if (fingers.size === 0) {
      hasMoved = false;
    }
    fingers.set(event.pointerId, pointOf(event));
    if (fingers.size > 1) {
      hasMoved = true;
    }
    host.setPointerCapture?.(event.pointerId);
  });

  host.addEventListener("pointermove", (event) => {
    const point = pointOf(event);
    const from = fingers.get(event.pointerId);
    if (from === undefined) {
      if (event.pointerType === "mouse") {
        meant.point(isOnControl(event) ? undefined : point);
      }
      return;
    }
    if (!hasMoved && Math.hypot(point.x - from.x, point.y - from.y) < tapSlack) {
      return;
    }
    hasMoved = true;
    if (fingers.size === 2) {
      pinch(event.pointerId, point);
    } else if (fingers.size === 1) {
      meant.pan(point.x - from.x, point.y - from.y);
    }
    fingers.set(event.pointerId, point);
  });

  host.addEventListener("pointerup", (event) => {
    if (fingers.delete(event.pointerId) && !hasMoved) {
      tap(event, pointOf(event));
    }
  });
  host.addEventListener("pointercancel", (event) => fingers.delete(event.pointerId));
  host.addEventListener("pointerleave", () => meant.point(undefined));

  host.addEventListener(
    "wheel",
    (event) => {
      const pixels = event.deltaY * (event.deltaMode === 1 ? linePixels : 1);
      const factor = Math.exp(-Math.min(Math.max(pixels, -240), 240) / (event.ctrlKey ? 120 : 360));
      const point = pointOf(event);
      if (meant.zoom(factor, point, point) || event.ctrlKey) {
        event.preventDefault();
      }
    },
    { passive: false },
  );
  // Two fingers are a pinch and never scroll the page, whatever one finger may do.
  host.addEventListener(
    "touchmove",
    (event) => {
      if (event.touches.length > 1) {
        event.preventDefault();
      }
    },
    { passive: false },
  );
}
