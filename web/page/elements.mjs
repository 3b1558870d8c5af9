// Short ways to the page's elements.

export const byId = (id) => document.getElementById(id);

/** A new element with properties (`className`, `onclick`, ...; "aria-..." and "data-..." are attributes). */
export function make(name, properties = {}, ...children) {
  const element = document.createElement(name);
  for (const [key, what] of Object.entries(properties)) {
    if (key.includes("-") || key === "role" || key === "scope" || key === "for") {
      element.setAttribute(key, what);
    } else {
      element[key] = what;
    }
  }
  element.append(...children);
  return element;
}

const svgSpace = "http://www.w3.org/2000/svg";

export function makeSvg(name, attributes = {}, ...children) {
  const element = document.createElementNS(svgSpace, name);
  for (const [key, what] of Object.entries(attributes)) {
    element.setAttribute(key, what);
  }
  element.append(...children);
  return element;
}

/** One of the signs at the top of the page. */
export const sign = (id) => makeSvg("svg", {}, makeSvg("use", { href: `#${id}` }));

/** Gives a button its sign, and its name to hear and to see under the pointer. */
export function face(button, symbol, name) {
  button.replaceChildren(sign(symbol), make("span", {}, name));
  button.title = name;
}

/** Sets a text only where it differs, so that nothing is laid out or spoken anew. */
export function say(element, text) {
  if (element.textContent !== text) {
    element.textContent = text;
  }
}

/** Whether keys belong to what has the focus: typing, choosing, sliding. */
export const takesKeys = (element) => /^(INPUT|SELECT|TEXTAREA)$/.test(element.tagName);

/** Marks a field as one that holds what cannot be used. */
export function markInvalid(field, isInvalid) {
  if (isInvalid) {
    field.setAttribute("aria-invalid", "true");
  } else {
    field.removeAttribute("aria-invalid");
  }
}

/**
 * Shows in `error` what is wrong; an empty text takes it back. Scripts are told first which value was
 * meant, "lat: …"; here the field stands above.
 */
export function complain(error, text) {
  say(error, text.replace(/^[a-z]+: /, ""));
  error.hidden = text === "";
}
