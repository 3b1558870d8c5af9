// The fields of moment and place: a sheet on a narrow screen, a column of a wide one, and both can be closed.
import { byId } from "./elements.mjs";

export function startSheet() {
  const opener = byId("open-inputs");
  const sheet = byId("inputs");
  const set = (isOpen) => {
    sheet.classList.toggle("open", isOpen);
    opener.setAttribute("aria-expanded", isOpen);
  };
  const wide = matchMedia("(min-width: 66rem)"); // as in wide.css
  wide.addEventListener("change", () => set(wide.matches));
  set(wide.matches);
  const close = () => {
    set(false);
    opener.focus();
  };
  opener.onclick = () => {
    const isOpen = !sheet.classList.contains("open");
    set(isOpen);
    if (isOpen && !wide.matches) {
      byId("close-inputs").focus();
    }
  };
  byId("close-inputs").onclick = close;
  sheet.addEventListener("keydown", (event) => {
    if (event.key === "Escape" && !wide.matches) {
      close();
    }
  });
}
