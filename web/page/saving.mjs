// What leaves the page, and only by a person's hand: a file, a sheet of paper, a link.
import { byId, make } from "./elements.mjs";
import { notify, notifyBriefly, tell } from "./notices.mjs";
import { placeWords } from "./words.mjs";

/** "Star Map - Wendmark - 720-06-12 22-30.svg", as the desktop offers it. */
export function fileName(engine, sky, title) {
  const place = placeWords(engine, sky)
    .replace(/ +/g, " ")
    .replace(/[/\p{Cc}]/gu, "-");
  const moment =
    sky.reading.standard?.date.replace("T", " ").replace(":", "-") ??
    `day ${sky.baseTime.toFixed(2)}`;
  return `${title} - ${place} - ${moment}.svg`;
}

function save(text, name) {
  const address = URL.createObjectURL(new Blob([text], { type: "image/svg+xml" }));
  make("a", { href: address, download: name }).click();
  // The browser reads it after the click; a minute is time enough.
  setTimeout(() => URL.revokeObjectURL(address), 60000);
}

/** Where there is no clipboard: the old way, by a field that is copied from. */
function copyByHand(text) {
  const field = make("textarea", { value: text, className: "spoken", readOnly: true });
  document.body.append(field);
  field.select();
  const done = document.execCommand("copy");
  field.remove();
  return done;
}

async function copy(text) {
  try {
    await navigator.clipboard.writeText(text);
    return true;
  } catch {
    return copyByHand(text);
  }
}

/** `chart()` is the chart that is shown, if one is. */
export function startSaving(engine, sky, chart) {
  byId("save-svg").onclick = () => {
    const { document: name, fileTitle } = chart();
    const text = engine.document(name, sky.asked);
    if (text.ok) {
      save(text.value, fileName(engine, sky, fileTitle));
      tell("Saved.");
    } else {
      notify(text.error);
    }
  };
  byId("print").onclick = () => print();
  byId("copy-link").onclick = async () => {
    const link = `${location.href.split("#")[0]}#${sky.reading.address}`;
    const done = await copy(link);
    if (done) {
      notifyBriefly("The link is copied.");
    } else {
      notify(`The link: ${link}`);
    }
  };
}
