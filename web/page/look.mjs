// Light or dark: as the device is, until the switch says otherwise.
import { byId, face } from "./elements.mjs";

export function startLook() {
  const dark = matchMedia("(prefers-color-scheme: dark)");
  let isDark = dark.matches;
  const show = () => {
    document.documentElement.dataset.look = isDark ? "dark" : "light";
    byId("look").setAttribute("aria-pressed", isDark);
    // A phone paints its own bars in the page's colour.
    const ground = getComputedStyle(document.documentElement).getPropertyValue("--ground");
    byId("ground").content = ground.trim();
  };
  dark.addEventListener("change", () => {
    isDark = dark.matches;
    show();
  });
  byId("look").onclick = () => {
    isDark = !isDark;
    show();
  };
  face(byId("look"), "i-look", "Dark");
  show();
}
