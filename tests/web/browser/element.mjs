// One element of a page: where it stands, what a person does to it, and how all of them are told to
// screen readers.

export class Element {
  #page;
  #id;

  constructor(page, backendNodeId) {
    this.#page = page;
    this.#id = backendNodeId;
  }

  /** What a function of the element and further arguments gives. */
  async evaluate(action, ...given) {
    const { object } = await this.#page.send("DOM.resolveNode", { backendNodeId: this.#id });
    const answer = await this.#page.send("Runtime.callFunctionOn", {
      objectId: object.objectId,
      functionDeclaration: `function (...given) { return (${action})(this, ...given); }`,
      arguments: given.map((value) => ({ value })),
      awaitPromise: true,
      returnByValue: true,
      userGesture: true,
    });
    if (answer.exceptionDetails) throw new Error(answer.exceptionDetails.exception.description);
    return answer.result.value;
  }

  /** {left, top, width, height, x, y} in pixels of the view, x and y in the middle; scrolled to first. */
  async box() {
    // To the middle: at the edges of the view bars may lie over it.
    await this.evaluate((element) => {
      element.scrollIntoView({ block: "center", inline: "nearest", behavior: "instant" });
    });
    await this.#page.painted();
    return this.evaluate((element) => {
      const { left, top, width, height } = element.getBoundingClientRect();
      return { left, top, width, height, x: left + width / 2, y: top + height / 2 };
    });
  }

  /** Pressed by finger where the view has touch, by mouse elsewhere. */
  async press() {
    const { x, y } = await this.box();
    const { hands, view } = this.#page;
    await (view.touch ? hands.tap(x, y) : hands.click(x, y));
  }

  focus() {
    return this.#page.send("DOM.focus", { backendNodeId: this.#id });
  }

  /** Typed in place of what stands in the field; not yet confirmed. */
  async write(text) {
    await this.focus();
    await this.evaluate((field) => field.select());
    await this.#page.hands.key("Delete");
    await this.#page.hands.type(text);
  }
}

/** See Page.elements. */
export async function elementsOf(page) {
  const { nodes } = await page.send("Accessibility.getFullAXTree");
  return nodes
    .filter((node) => !node.ignored && node.backendDOMNodeId)
    .map((node) => ({
      role: node.role?.value ?? "",
      name: node.name?.value ?? "",
      description: node.description?.value ?? "",
      value: node.value?.value ?? "",
      focusable: node.properties?.some((p) => p.name === "focusable" && p.value.value) ?? false,
      element: new Element(page, node.backendDOMNodeId),
    }));
}
