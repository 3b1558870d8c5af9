// The map of Tamsorel in outline, on which a place is chosen by tap and by arrow keys.
import { makeSvg } from "./elements.mjs";
import { outline } from "./outline.mjs";

const bounds = { west: -45, east: 45, south: 0, north: 60 };
/** A tap so near to a known place, in pixels, means it. */
const snap = 14;
const arrows = { ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, 1], ArrowDown: [0, -1] };
const [keyStep, smallKeyStep] = [1, 0.1]; // degrees

const radians = (degree) => (degree * Math.PI) / 180;
const tenth = (degree) => Math.round(degree * 10) / 10;
const within = (degree, low, high) => Math.min(Math.max(degree, low), high);

/** Where a place stands on the outline's sheet. */
function toSheet({ lat, long }) {
  return {
    x: outline.centreX + outline.longitudeScale * radians(long) * Math.cos(radians(lat)),
    y: outline.equatorY - outline.latitudeScale * radians(lat),
  };
}

function toPlace({ x, y }) {
  const lat = (outline.equatorY - y) / outline.latitudeScale;
  const long = (x - outline.centreX) / (outline.longitudeScale * Math.cos(lat));
  const degree = 180 / Math.PI;
  return {
    lat: within(tenth(lat * degree), bounds.south, bounds.north),
    long: within(tenth(long * degree), bounds.west, bounds.east),
  };
}

/** The lines of every ten degrees, as a path. */
function graticule() {
  let path = "";
  for (let lat = 10; lat < bounds.north; lat += 10) {
    path += `M0 ${toSheet({ lat, long: 0 }).y.toFixed(0)}h${outline.width}`;
  }
  for (let long = -40; long <= 40; long += 10) {
    for (let lat = bounds.south; lat <= bounds.north; lat += 5) {
      const { x, y } = toSheet({ lat, long });
      path += `${lat === bounds.south ? "M" : "L"}${x.toFixed(0)} ${y.toFixed(0)}`;
    }
  }
  return path;
}

/** Draws the map into `host`; `choose({lat, long})` is called for every choice. */
export function createMap(host, places, choose) {
  const here = makeSvg(
    "g",
    { class: "here" },
    makeSvg("circle", { r: 26 }),
    makeSvg("circle", { r: 9 }),
  );
  const spots = places.map((place) => {
    const { x, y } = toSheet(place);
    return makeSvg("circle", { class: "spot", cx: x.toFixed(1), cy: y.toFixed(1), r: 9 });
  });
  host.append(
    makeSvg(
      "svg",
      {
        viewBox: `0 0 ${outline.width} ${outline.height}`,
        "aria-hidden": "true",
        focusable: "false",
      },
      makeSvg("path", { class: "land", d: outline.land }),
      makeSvg("path", { class: "lakes", d: outline.lakes }),
      makeSvg("path", { class: "net", d: graticule() }),
      ...spots,
      here,
    ),
  );
  let place = { lat: 0, long: 0 };

  host.addEventListener("click", (event) => {
    const sheet = host.firstChild.getBoundingClientRect();
    const unit = outline.width / sheet.width;
    const at = { x: (event.clientX - sheet.left) * unit, y: (event.clientY - sheet.top) * unit };
    const away = (known) => Math.hypot(toSheet(known).x - at.x, toSheet(known).y - at.y);
    const nearest = places.reduce((best, known) => (away(known) < away(best) ? known : best));
    const { lat, long } = away(nearest) <= snap * unit ? nearest : toPlace(at);
    choose({ lat, long });
  });
  host.addEventListener("keydown", (event) => {
    const [east, north] = arrows[event.key] ?? [];
    if (east === undefined || event.ctrlKey || event.altKey || event.metaKey) {
      return;
    }
    event.preventDefault();
    const step = event.shiftKey ? smallKeyStep : keyStep;
    choose({
      lat: within(tenth(place.lat + north * step), -90, 90),
      long: within(tenth(place.long + east * step), -180, 180),
    });
  });
  return {
    show({ lat, long }, words) {
      place = { lat, long };
      const { x, y } = toSheet(place);
      here.setAttribute("transform", `translate(${x.toFixed(1)} ${y.toFixed(1)})`);
      host.setAttribute("aria-label", `Map of Tamsorel, ${words}`);
    },
  };
}
