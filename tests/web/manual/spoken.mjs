// A page as a screen reader is told of it: the tree that the browser hands to it, and the words of that in
// the order in which they are spoken.
//
//     node tests/web/manual/spoken.mjs docs/manual/tables.html
//
// prints the words of a page, a part a line, to be read by whoever writes it.

import { resolve } from "node:path";
import { fileURLToPath, pathToFileURL } from "node:url";

import { Chromium } from "../browser/chromium.mjs";

/** Drawn a second time, or said with the words beside it. */
const unspoken = new Set(["InlineTextBox", "ListMarker"]);

/** The tree: {role, name, level, address, isStop (Tab comes by), children} each; `level` of headings. */
export async function spokenTree(page) {
  const { nodes } = await page.send("Accessibility.getFullAXTree");
  const byId = new Map(nodes.map((node) => [node.nodeId, node]));
  const partsOf = (node) =>
    (node.childIds ?? [])
      .map((id) => byId.get(id))
      .filter((child) => child && !unspoken.has(child.role?.value))
      .flatMap((child) => (child.ignored ? partsOf(child) : [partOf(child)]));
  const partOf = (node) => {
    const property = (name) => node.properties?.find((one) => one.name === name)?.value.value;
    return {
      role: node.role?.value ?? "",
      name: node.name?.value ?? "",
      level: property("level"),
      address: property("url"),
      isStop: property("focusable") === true && node.role?.value !== "RootWebArea",
      children: partsOf(node),
    };
  };
  return partOf(nodes[0]);
}

/** The part itself and all within it, in their order. */
export function* within(part) {
  yield part;
  for (const child of part.children) yield* within(child);
}

export const allOf = (part, ...roles) =>
  [...within(part)].filter(({ role }) => roles.includes(role));

/** What is said of a part, its pictures by their descriptions. */
export function wordsOf({ role, name, children }) {
  if (role === "StaticText" || role === "image") return name;
  return children.map(wordsOf).join("");
}

export const cells = ["cell", "gridcell", "rowheader", "columnheader"];
const blocks = ["heading", "paragraph", "listitem", "Figcaption", "group", "image"];

/** Text that stands by itself: {role, words, level}; an example (a group) is one, and so is a row. */
export function blocksOf(part) {
  if (part.role === "StaticText" || (part.role === "link" && allOf(part, "image").length === 0))
    return [{ role: "text", words: wordsOf(part) }];
  if (part.role === "row")
    return [
      {
        role: "row",
        words: allOf(part, ...cells)
          .map(wordsOf)
          .join(" | "),
      },
    ];
  if (blocks.includes(part.role) && allOf(part, "list", "table").length === 0)
    return [{ role: part.role, words: wordsOf(part), level: part.level }];
  return part.children.flatMap(blocksOf);
}

if (process.argv[1] === fileURLToPath(import.meta.url)) {
  const browser = await Chromium.start();
  for (const file of process.argv.slice(2)) {
    const view = { width: 1200, height: 800 };
    const page = await browser.open(pathToFileURL(resolve(file)).href, view);
    await page.painted();
    for (const { role, words, level } of blocksOf(await spokenTree(page)))
      console.log(`${role}${level && role === "heading" ? ` ${level}` : ""}: ${words}`);
  }
  await browser.close();
}
