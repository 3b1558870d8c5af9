// A chart on the screen: drawn from its document, enlarged and moved, pointed at, walked by keys.
import { byId, face, make, makeSvg, say } from "./elements.mjs";
import { startGestures } from "./gestures.mjs";
import { anchor, extent, markAt, neighbour, sameMark } from "./marks.mjs";
import { placeReadOut } from "./read_out.mjs";
import { degrees } from "./words.mjs";
import * as framings from "./zoom.mjs";

const arrows = { ArrowLeft: "left", ArrowRight: "right", ArrowUp: "up", ArrowDown: "down" };
const buttonZoom = 1.6;
/** The height of names: at least so many pixels on the screen, and what the documents have in units. */
const leastLetters = 8;
const drawnLetters = 5;

/** "Altitude: -012:30" as people write it. */
const readable = (line) => line.replace(/-?\d*:\d\d(?=$)/, degrees);

/**
 * The chart of the document `name` in the element of that id. `box` {x, y, size} is the square of
 * the document that is shown whole; `isShown()` says whether it can be seen at all; `seen(marks)`
 * leaves the marks that may be pointed at.
 */
export function createChart(engine, sky, { name, title, fileTitle, box, isShown, seen }) {
  const host = byId(name);
  const sheet = makeSvg("svg", { class: "sheet", "aria-hidden": "true", focusable: "false" });
  const ring = make("div", { className: "ring", hidden: true });
  const readOut = make("div", { className: "read-out", id: `${name}-read-out`, hidden: true });
  const button = (id, label, symbol, act) => {
    const made = make("button", { type: "button", id: `${name}-${id}`, className: `tool ${id}` });
    face(made, symbol, label);
    made.onclick = act;
    return made;
  };
  const wholeButton = button("whole", "Whole chart", "i-whole", () => zoomWhole());
  const larger = button("larger", "Enlarge", "i-plus", () => zoomBy(buttonZoom));
  const smaller = button("smaller", "Reduce", "i-minus", () => zoomBy(1 / buttonZoom));
  host.append(sheet, ring, readOut, smaller, wholeButton, larger);
  host.tabIndex = 0;
  host.setAttribute("role", "application");
  host.setAttribute("aria-roledescription", "chart");
  host.setAttribute("aria-label", title);
  host.setAttribute("aria-describedby", `${name}-summary`);

  let view = { width: 0, height: 0 };
  let framing;
  let marksKey = "";
  let marks = [];
  let summary = "";
  let shown; // the mark of ring and read-out, and whether it stays when the pointer leaves
  let pinned = false;
  let frame = 0;

  function draw() {
    if (!isShown()) {
      return;
    }
    const document = engine.document(name, sky.asked);
    if (document.ok) {
      const text = document.value;
      sheet.innerHTML = text.slice(text.indexOf(">") + 1, text.lastIndexOf("</svg>"));
    }
    if (shown) {
      const at = anchor(shown);
      show(sameMark(currentMarks(), shown, at), pinned);
    }
  }

  function currentMarks() {
    const key = `${sky.baseTime};${sky.lat},${sky.long}`;
    if (key !== marksKey) {
      const read = engine.marks(name, sky.asked);
      marksKey = key;
      marks = read.ok ? seen(read.value.marks).filter(isOnSheet) : [];
      summary = read.ok ? read.value.summary : "";
    }
    return marks;
  }

  function isOnSheet(mark) {
    if (mark.kind === "panel_line" || mark.dots.length + mark.letters.length === 0) {
      return false;
    }
    const { x, y } = anchor(mark);
    return x >= box.x && y >= box.y && x <= box.x + box.size && y <= box.y + box.size;
  }

  function reframe() {
    frame = 0;
    if (view.width === 0) {
      return;
    }
    framing = framing ? framings.held(framing, box, view) : framings.whole(box, view);
    sheet.setAttribute("viewBox", framings.viewBox(framing, view));
    const isWhole = framing.scale <= framings.fittingScale(box, view) * 1.0001;
    if (isWhole && [wholeButton, smaller].includes(document.activeElement)) {
      host.focus(); // they go, the focus stays
    }
    wholeButton.hidden = isWhole;
    smaller.disabled = isWhole;
    larger.disabled =
      framing.scale >= framings.fittingScale(box, view) * framings.greatestZoom * 0.999;
    // A finger scrolls the page while there is nothing to move within the chart.
    host.style.touchAction = isWhole ? "pan-y" : "none";
    host.classList.toggle("enlarged", !isWhole);
    // Small charts have larger letters, so that names can be read before one enlarges them.
    sheet.style.setProperty(
      "--letters",
      `${Math.max(leastLetters / framing.scale, drawnLetters)}px`,
    );
    placeShown();
  }

  const reframeSoon = () => (frame ||= requestAnimationFrame(reframe));

  function placeShown() {
    if (!shown) {
      return;
    }
    const at = framings.pointOf(framing, view, anchor(shown));
    const radius = Math.max(extent(shown) * framing.scale + 4, 9);
    ring.style.cssText = `left:${at.x - radius}px;top:${at.y - radius}px;width:${2 * radius}px;height:${2 * radius}px`;
    placeReadOut(readOut, view, at, radius);
  }

  function show(mark, stays) {
    pinned = mark !== undefined && stays;
    shown = mark;
    ring.hidden = readOut.hidden = mark === undefined;
    if (mark) {
      const [first, ...lines] = mark.read_out;
      readOut.replaceChildren(
        make("b", {}, first),
        ...lines.map((line) => make("span", {}, readable(line))),
      );
      placeShown();
    }
  }

  function zoomBy(factor, from = { x: view.width / 2, y: view.height / 2 }, to = from) {
    const next = framings.zoomed(framing, box, view, factor, from, to);
    const changed = Math.abs(next.scale / framing.scale - 1) > 1e-4;
    const moved = next.x !== framing.x || next.y !== framing.y;
    framing = next;
    if (changed || moved) {
      reframeSoon();
    }
    return changed;
  }

  function zoomWhole() {
    framing = framings.whole(box, view);
    reframe();
  }

  function pan(dx, dy) {
    framing = framings.held(
      { ...framing, x: framing.x - dx / framing.scale, y: framing.y - dy / framing.scale },
      box,
      view,
    );
    reframeSoon();
  }

  const markUnder = (point) =>
    markAt(currentMarks(), framings.unitAt(framing, view, point), framing.scale);

  startGestures(host, {
    pan,
    zoom: zoomBy,
    tap(point) {
      const mark = markUnder(point);
      show(mark, true);
      say(byId("spoken-mark"), mark?.spoken ?? "");
    },
    point(point) {
      if (pinned || sky.isMoving) {
        return;
      }
      const mark = point && markUnder(point);
      if (mark !== shown) {
        show(mark, false);
      }
    },
  });

  function walk(side) {
    const all = currentMarks();
    const middle = { x: framing.x, y: framing.y };
    const away = (mark) => Math.hypot(anchor(mark).x - middle.x, anchor(mark).y - middle.y);
    const from = shown && all.includes(shown) ? shown : undefined;
    const next = from
      ? neighbour(all, from, side)
      : all.reduce((best, mark) => (best && away(best) <= away(mark) ? best : mark), undefined);
    if (!next) {
      return;
    }
    const at = framings.pointOf(framing, view, anchor(next));
    if (at.x < 0 || at.y < 0 || at.x > view.width || at.y > view.height) {
      framing = framings.held({ ...framing, ...anchor(next) }, box, view);
      reframe();
    }
    show(next, true);
    say(byId("spoken-mark"), next.spoken);
  }

  host.addEventListener("keydown", (event) => {
    if (event.target !== host || event.ctrlKey || event.altKey || event.metaKey) {
      return;
    }
    if (arrows[event.key]) {
      walk(arrows[event.key]);
      event.preventDefault();
    } else if (event.key === "Escape") {
      if (!shown) {
        host.blur();
      }
      show(undefined, false);
      say(byId("spoken-mark"), "");
    }
  });

  new ResizeObserver(() => {
    const wasWhole = !framing || framing.scale <= framings.fittingScale(box, view) * 1.0001;
    view = { width: host.clientWidth, height: host.clientHeight };
    framing = wasWhole ? undefined : framing;
    reframe();
  }).observe(host);
  // Paper shows the whole chart, whatever is enlarged on the screen.
  addEventListener("beforeprint", () =>
    sheet.setAttribute("viewBox", [box.x, box.y, box.size, box.size].join(" ")),
  );
  addEventListener("afterprint", reframe);

  sky.whenMoved(draw);
  return {
    zoomBy,
    zoomWhole,
    fileTitle,
    document: name,
    /** Two sentences on all that is seen. */
    get summary() {
      currentMarks();
      return summary;
    },
  };
}
