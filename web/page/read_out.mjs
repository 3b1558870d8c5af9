// Where the card stands that says what is pointed at.

const gap = 8;

/** Beside the point `at`, on whichever side the view has room, all in pixels of the view. */
export function placeReadOut(card, view, at, radius) {
  const [width, height] = [card.offsetWidth, card.offsetHeight];
  const isRight = at.x + radius + gap + width <= view.width || at.x < view.width / 2;
  const x = isRight ? at.x + radius + gap : at.x - radius - gap - width;
  const y = at.y - height / 2;
  // Where no side has room, as on a narrow phone, it stands above or below.
  const isBeside = x >= 0 && x + width <= view.width;
  const above = at.y - radius - gap - height;
  const left = Math.min(Math.max(isBeside ? x : at.x - width / 2, gap), view.width - width - gap);
  const top = isBeside ? y : above >= 0 ? above : at.y + radius + gap;
  card.style.left = `${left}px`;
  card.style.top = `${Math.min(Math.max(top, gap), view.height - height - gap)}px`;
}
