// What a person does to a page: fingers, mouse, wheel and keys. Places are CSS pixels of the view.

/** Keys that write nothing, or something else than their name: [code, virtual key, text]. */
const keys = {
  Tab: ["Tab", 9],
  Enter: ["Enter", 13, "\r"],
  Escape: ["Escape", 27],
  " ": ["Space", 32, " "],
  PageUp: ["PageUp", 33],
  PageDown: ["PageDown", 34],
  End: ["End", 35],
  Home: ["Home", 36],
  ArrowLeft: ["ArrowLeft", 37],
  ArrowUp: ["ArrowUp", 38],
  ArrowRight: ["ArrowRight", 39],
  ArrowDown: ["ArrowDown", 40],
  Delete: ["Delete", 46],
  Backspace: ["Backspace", 8],
};
const held = { Alt: 1, Control: 2, Meta: 4, Shift: 8 };

/** Steps of a movement: a finger is told of on its way too. */
const stepsOfMovement = 12;

const between = (from, to, part) => ({
  x: from.x + (to.x - from.x) * part,
  y: from.y + (to.y - from.y) * part,
});

export class Hands {
  #page;

  constructor(page) {
    this.#page = page;
  }

  /** One key, for example "Tab", "a", "+", with what is held meanwhile ("Shift", "Control"). */
  async key(key, ...holding) {
    const modifiers = holding.reduce((sum, name) => sum | held[name], 0);
    // Of letters and digits the virtual key is their code; other signs have none that all keyboards share.
    const plain = [undefined, /^[a-z0-9]$/i.test(key) ? key.toUpperCase().charCodeAt(0) : 0, key];
    const [code, windowsVirtualKeyCode, text] = keys[key] ?? plain;
    const event = { key, code, windowsVirtualKeyCode, modifiers };
    const writes = text !== undefined && (modifiers & (held.Control | held.Alt | held.Meta)) === 0;
    await this.#page.send("Input.dispatchKeyEvent", {
      ...event,
      type: writes ? "keyDown" : "rawKeyDown",
      ...(writes && { text }),
    });
    await this.#page.send("Input.dispatchKeyEvent", { ...event, type: "keyUp" });
  }

  async type(text) {
    for (const letter of text) await this.key(letter);
  }

  #mouse(type, { x, y }, more = {}) {
    return this.#page.send("Input.dispatchMouseEvent", { type, x, y, ...more });
  }

  point(x, y) {
    return this.#mouse("mouseMoved", { x, y });
  }

  async click(x, y, clickCount = 1) {
    const button = { button: "left", clickCount };
    await this.point(x, y);
    await this.#mouse("mousePressed", { x, y }, { ...button, buttons: 1 });
    await this.#mouse("mouseReleased", { x, y }, button);
  }

  /** From one place to another with the button held; `meanwhile` is called before it is let go. */
  async drag(from, to, meanwhile = () => {}) {
    const button = { button: "left", clickCount: 1 };
    await this.point(from.x, from.y);
    await this.#mouse("mousePressed", from, { ...button, buttons: 1 });
    for (let step = 1; step <= stepsOfMovement; ++step) {
      const place = between(from, to, step / stepsOfMovement);
      await this.#mouse("mouseMoved", place, { button: "left", buttons: 1 });
    }
    await meanwhile();
    await this.#mouse("mouseReleased", to, button);
  }

  /** The wheel at a place; down and right are positive. */
  wheel(x, y, { down = 0, right = 0, holding = [] }) {
    const modifiers = holding.reduce((sum, name) => sum | held[name], 0);
    return this.#mouse("mouseWheel", { x, y }, { deltaX: right, deltaY: down, modifiers });
  }

  #touch(type, places) {
    const touchPoints = places.map(({ x, y }, id) => ({
      x,
      y,
      id,
      radiusX: 8,
      radiusY: 8,
      force: 1,
    }));
    return this.#page.send("Input.dispatchTouchEvent", { type, touchPoints });
  }

  async tap(x, y) {
    await this.#touch("touchStart", [{ x, y }]);
    await this.#touch("touchEnd", []);
  }

  /** One finger from one place to another; `meanwhile` is called before it is lifted. */
  swipe(from, to, meanwhile = () => {}) {
    return this.#fingers([from], [to], meanwhile);
  }

  /** Two fingers beside a place, their distance changed. */
  pinch(x, y, { from, to }, meanwhile = () => {}) {
    const fingers = (apart) => [
      { x: x - apart / 2, y },
      { x: x + apart / 2, y },
    ];
    return this.#fingers(fingers(from), fingers(to), meanwhile);
  }

  async #fingers(from, to, meanwhile) {
    await this.#touch("touchStart", from);
    for (let step = 1; step <= stepsOfMovement; ++step) {
      const places = from.map((place, finger) =>
        between(place, to[finger], step / stepsOfMovement),
      );
      await this.#touch("touchMove", places);
    }
    await meanwhile();
    await this.#touch("touchEnd", []);
  }
}
