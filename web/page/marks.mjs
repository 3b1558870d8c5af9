// Which mark of a chart is meant, by the pointer and by the arrow keys, as in the desktop's charts.

/** How far from a mark one still points at it, in pixels. */
const reach = 25;

/** Names are long and lie over stars, which go before them. */
const overStars = 6.5;

/** How far a point is from a stretch [x1, y1, x2, y2, radius]. */
function distanceTo([x1, y1, x2, y2, radius], point) {
  const [dx, dy] = [x2 - x1, y2 - y1];
  const length = dx * dx + dy * dy;
  const share = length > 0 ? ((point.x - x1) * dx + (point.y - y1) * dy) / length : 0;
  const along = Math.min(Math.max(share, 0), 1);
  return Math.max(Math.hypot(point.x - x1 - along * dx, point.y - y1 - along * dy) - radius, 0);
}

function cost(stretches, magnitude, point, scale) {
  const distance = Math.min(...stretches.map((stretch) => distanceTo(stretch, point) * scale));
  return distance <= reach ? distance + magnitude : Infinity;
}

/** Of all within reach the one with the least sum of distance in pixels and magnitude. */
export function markAt(marks, point, scale) {
  let best;
  let least = Infinity;
  for (const mark of marks) {
    const letters = Math.max(mark.magnitude, overStars);
    const here = Math.min(
      cost(mark.dots, mark.magnitude, point, scale),
      cost(mark.letters, letters, point, scale),
    );
    if (here < least) {
      least = here;
      best = mark;
    }
  }
  return best;
}

const stretchOf = (mark) => mark.dots[0] ?? mark.letters[0];

/** The unit of the chart that stands for a mark. */
export function anchor(mark) {
  const [x1, y1, x2, y2] = stretchOf(mark);
  return { x: (x1 + x2) / 2, y: (y1 + y2) / 2 };
}

/** How large it is drawn, in units: the radius of what a ring goes around. */
export function extent(mark) {
  const [x1, y1, x2, y2, radius] = stretchOf(mark);
  return mark.dots.length > 0 && x1 === x2 && y1 === y2 ? radius : 2;
}

function sideOf(dx, dy) {
  if (Math.abs(dx) > Math.abs(dy)) {
    return dx < 0 ? "left" : "right";
  }
  return dy < 0 ? "up" : "down";
}

/** The nearest mark that lies more to that side than to any other; of marks on one point each is
    the right neighbour of the one before it. */
export function neighbour(marks, from, side) {
  const here = anchor(from);
  const place = marks.indexOf(from);
  let best;
  let least = Infinity;
  let before;
  for (const [index, mark] of marks.entries()) {
    const there = anchor(mark);
    const [dx, dy] = [there.x - here.x, there.y - here.y];
    if (index === place) {
      continue;
    }
    if (dx === 0 && dy === 0) {
      if (index < place) {
        before = mark;
      } else if (side === "right") {
        return mark;
      }
    } else if (sideOf(dx, dy) === side && Math.hypot(dx, dy) < least) {
      least = Math.hypot(dx, dy);
      best = mark;
    }
  }
  return side === "left" && before ? before : best;
}

/** Of the marks of that kind and name the one nearest to where it was. */
export function sameMark(marks, { kind, name }, at) {
  let best;
  let least = Infinity;
  for (const mark of marks) {
    const { x, y } = anchor(mark);
    const distance = Math.hypot(x - at.x, y - at.y);
    if (mark.kind === kind && mark.name === name && distance < least) {
      least = distance;
      best = mark;
    }
  }
  return best;
}
