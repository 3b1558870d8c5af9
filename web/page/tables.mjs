// The tables, laid out from the documents' lines: what they say is theirs, where it stands is ours.
import { byId, make, say } from "./elements.mjs";

/** Short headings in full, for who hears them or holds the pointer over them. */
const inFull = {
  "I-RA": "Ivro, right ascension",
  "I-DEC": "Ivro, declination",
  "Ec-Lat": "Ivro, ecliptic latitude",
  "Ec-Long": "Ivro, ecliptic longitude",
  "T-RA": "Thessil, right ascension",
  "T-DEC": "Thessil, declination",
  "T-Long": "Thessil, ecliptic longitude",
  Phase: "Ivro’s phase",
};
const lastColumn = "Rising and setting";
const dateEnds = " OST";

/** The words of a line between blanks; headings such as "(+/- 1 deg)" are one. */
const headingsOf = (line) => line.trim().split(/ {1,}(?![^(]*\))/);

function headingCell(text, properties = {}) {
  const cell = make("th", { scope: "col", ...properties }, text);
  if (inFull[text]) {
    cell.title = inFull[text];
    cell.setAttribute("aria-label", inFull[text]);
  }
  return cell;
}

/** A row's date, its figures and what stands behind them; undefined of a line of another form. */
function rowOf(line, columns) {
  const end = line.indexOf(dateEnds);
  if (end < 0) {
    return undefined;
  }
  const words = line
    .slice(end + dateEnds.length)
    .trim()
    .split(/ +/);
  return [line.slice(0, end), ...words.slice(0, columns), words.slice(columns).join("  ")];
}

/** A table of a document's text, of which so many lines are headings. */
export function tableOf(text, headingLines) {
  const lines = text.trimEnd().split("\n");
  const heading = lines[headingLines - 1];
  const names = headingsOf(heading.slice(heading.indexOf("TIME") + "TIME".length));
  const isConjunctions = headingLines > 1;
  const figures = isConjunctions ? names.slice(0, -1) : names;
  const last = isConjunctions ? "Conjunctions" : lastColumn;
  const head = make("thead");
  if (isConjunctions) {
    const groups = lines[0]
      .trim()
      .split(/ {2,}/)
      .map((group) => group[0] + group.slice(1).toLowerCase());
    head.append(
      make(
        "tr",
        {},
        make("td", {}),
        ...groups
          .slice(0, 2)
          .map((group) => headingCell(group, { scope: "colgroup", colSpan: figures.length / 2 })),
        make("td", {}),
      ),
    );
  }
  const named = figures.map((name) =>
    headingCell(isConjunctions ? name[0] + name.slice(1).toLowerCase() : name),
  );
  head.append(
    make(
      "tr",
      {},
      headingCell("Date, standard time"),
      ...named,
      headingCell(isConjunctions ? `${last} ${names.at(-1)}` : last),
    ),
  );
  const body = make("tbody");
  for (const line of lines.slice(headingLines)) {
    const row = rowOf(line, figures.length);
    const [first, ...cells] = row ?? [line];
    body.append(
      make(
        "tr",
        {},
        make("th", { scope: "row" }, first),
        ...cells.map((cell) => make("td", {}, cell)),
      ),
    );
  }
  return make("table", {}, make("caption", { className: "spoken" }), head, body);
}

/** Fills the tables' view whenever it is open and the sky at rest. */
export function startTables(engine, sky, isOpen) {
  let shown = "";
  const choice = () => document.querySelector("[name=table]:checked").value;
  function show() {
    const key = `${choice()} ${sky.baseTime};${sky.lat},${sky.long}`;
    if (!isOpen() || key === shown) {
      return;
    }
    shown = key;
    const about = engine.documents.find(({ document }) => document === choice());
    const text = engine.document(choice(), sky.asked);
    const box = byId("table-box");
    if (text.ok) {
      const table = tableOf(text.value, about.columnHeadingLines);
      table.caption.textContent = about.summary;
      box.replaceChildren(table);
    } else {
      box.replaceChildren(make("p", { className: "error" }, text.error));
    }
    box.scrollTop = 0;
    box.setAttribute("aria-label", about.heading);
    say(byId("table-words"), `${about.summary}, from the moment shown on.`);
  }
  byId("table-choice").addEventListener("change", () => show());
  sky.whenAtRest(show);
}
