// A printed page as poppler's tools read it.

import { execFileSync } from "node:child_process";

export const papers = {
  A4: { width: 8.27, height: 11.69 },
  Letter: { width: 8.5, height: 11 },
};

const read = (pdf, program, ...options) =>
  execFileSync(program, options, { input: pdf, maxBuffer: 2 ** 28 });

/** {pages, text, ink}: ink holds for each page the share of dark and coloured pixels, and whether some of it
    lies within five millimetres of an edge. */
export function readPaper(pdf) {
  const info = read(pdf, "pdfinfo", "-").toString();
  const pages = Number(/^Pages: +(\d+)$/m.exec(info)[1]);
  const text = read(pdf, "pdftotext", "-layout", "-", "-").toString();
  const ink = [];
  for (let page = 1; page <= pages; ++page) {
    const at = ["-f", `${page}`, "-l", `${page}`];
    ink.push(inkOf(read(pdf, "pdftoppm", ...at, "-r", "60", "-gray", "-")));
  }
  return { pages, text, ink };
}

/** Of a grey picture as pdftoppm writes it: "P5 width height 255" and a byte for each pixel. */
function inkOf(pgm) {
  const [header, width, height] = /^P5\s+(\d+)\s+(\d+)\s+255\s/.exec(pgm.toString("latin1", 0, 40));
  const pixels = pgm.subarray(header.length);
  const edge = Math.floor((5 / 25.4) * 60);
  let dark = 0;
  let atEdge = false;
  for (let y = 0; y < height; ++y) {
    for (let x = 0; x < width; ++x) {
      if (pixels[y * width + x] > 250) continue;
      ++dark;
      atEdge ||= x < edge || y < edge || x >= width - edge || y >= height - edge;
    }
  }
  return { share: dark / (width * height), atEdge };
}
