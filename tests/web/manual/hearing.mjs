// What somebody who hears a page of the manual cannot do with it: pictures that are not told, cells of
// which row or column is not known, links that do not say where they lead, and signs that are passed over.

import { allOf, blocksOf, cells, within, wordsOf } from "./spoken.mjs";

/** Signs that all voices name rightly, or pass over without loss. */
const plain = /[\p{L}\p{N}\p{M}\s!-~°…×−–“”’·→←½]/u;

/** Signs that voices leave out or call by names nobody knows, and the words to stand in the same text. */
const named = { "⌥": "option", "⌘": "command", "▾": "arrow down", "▴": "arrow up" };

/** What the charts shorten, and how each page that has it says it in full. */
const shortened = {
  OST: "standard time",
  GEN: "ascendant",
  MC: "midheaven",
  HA: "hour angle",
};

const vague = /^(here|this|that|there|it|more|all of them|see|link|page|saved?|saves|click.*)$/i;

function* faultsOfPictures(tree) {
  for (const { name } of allOf(tree, "image"))
    if (name.length < 60) yield `the picture "${name}" is not told`;
  for (const figure of allOf(tree, "figure")) {
    const [picture] = allOf(figure, "image");
    const [caption] = allOf(figure, "Figcaption");
    if (picture && caption && wordsOf(caption).includes(picture.name))
      yield `"${picture.name}" is said twice`;
  }
}

function* faultsOfTables(tree) {
  for (const table of allOf(tree, "table")) {
    const rows = allOf(table, "row").map((row) => allOf(row, ...cells));
    const heads = rows[0].map(wordsOf).join(", ");
    if (rows[0].some(({ role }) => role !== "columnheader")) yield `no heads over "${heads}"`;
    for (const row of rows.slice(1)) {
      const words = row.map(wordsOf);
      if (row[0].role !== "rowheader")
        yield `no head before "${words.join(", ")}" under "${heads}"`;
      if (words.some((said) => said.trim() === ""))
        yield `a cell of "${words[0]}" under "${heads}" is empty`;
    }
  }
}

function* faultsOfStops(tree) {
  for (const part of within(tree)) {
    if (part.isStop && part.name.trim() === "")
      yield `Tab stops at "${wordsOf(part).slice(0, 40)}", which has no name`;
    if (part.role === "link" && vague.test(part.name.trim()))
      yield `the link "${part.name}" does not say where it leads`;
  }
}

function* faultsOfSigns(tree) {
  const blocks = blocksOf(tree).filter(({ role }) => role !== "group");
  for (const { words } of blocks)
    for (const sign of new Set(words))
      if (!plain.test(sign) && !(sign in named && words.includes(named[sign])))
        yield `"${sign}" in "${words.slice(0, 60)}" is not heard`;
  const all = blocksOf(tree)
    .map(({ words }) => words)
    .join(" ");
  for (const [short, full] of Object.entries(shortened))
    if (new RegExp(`\\b${short}\\b`).test(all) && !all.toLowerCase().includes(full))
      yield `${short} is not said in full, "${full}"`;
}

/** The faults of a tree, see spokenTree. */
export function faultsOfHearing(tree) {
  return [
    ...faultsOfPictures(tree),
    ...faultsOfTables(tree),
    ...faultsOfStops(tree),
    ...faultsOfSigns(tree),
  ];
}

/** Runs in the page: keys that are nothing but a sign, and are not named. */
export function unnamedKeys() {
  return [...document.querySelectorAll("kbd")]
    .filter((key) => /^[-+=−*/]$/.test(key.textContent) && !key.closest("pre"))
    .filter((key) => !/^ \((plus|minus|equals)\)/.test(key.nextSibling?.textContent ?? ""))
    .map(
      (key) =>
        `the key ${key.textContent} in "${key.parentElement.textContent.slice(0, 60)}" is not named`,
    );
}
