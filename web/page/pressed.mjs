// Buttons that go on while they are held, as those of a watch do.

const waitFirst = 400; // milliseconds
const waitNext = 80;

/** Calls `act` for every press, and again and again while a finger or the mouse holds the button. */
export function whenPressed(button, sky, act) {
  let timer = 0;
  let hasRepeated = false;

  const repeat = () => {
    if (!hasRepeated) {
      hasRepeated = true;
      sky.hold();
    }
    act();
    timer = setTimeout(repeat, waitNext);
  };
  const letGo = () => {
    clearTimeout(timer);
    if (timer !== 0 && hasRepeated) {
      sky.release();
    }
    timer = 0;
  };
  button.addEventListener("pointerdown", (event) => {
    if (event.button === 0) {
      letGo();
      hasRepeated = false;
      timer = setTimeout(repeat, waitFirst);
    }
  });
  for (const end of ["pointerup", "pointercancel", "pointerleave", "blur"]) {
    button.addEventListener(end, letGo);
  }
  button.addEventListener("contextmenu", (event) => event.preventDefault());
  button.addEventListener("click", (event) => {
    // The click that ends a long press has had its steps; a key's is none of that.
    if (!hasRepeated || event.detail === 0) {
      act();
    }
    hasRepeated = false;
  });
}
