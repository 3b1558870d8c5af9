#include "charts/interpretation.h"

#include <array>
#include <cstdint>
#include <string>

#include "charts/chart_frame.h"
#include "charts/element.h"
#include "charts/reading.h"
#include "charts/verdict.h"

namespace veyruna::charts {

namespace {

constexpr std::int64_t headingX = 400;
constexpr std::int64_t rowX = 410;

/// Where the blocks' headings stand, and the keep among them; a row every 10 units below.
constexpr std::int64_t rowHeight = 10;
constexpr std::array<std::int64_t, readingBlocks.size()> headingY = {0, 50, 100, 200, 290};
constexpr std::int64_t keepY = 170;
constexpr std::int64_t pageEndY = 370;

/// Whether so many rows below a block's heading end above `end`.
constexpr bool hasRoom(ReadingBlock block, std::size_t rows, std::int64_t end) {
  return headingY[static_cast<std::size_t>(block)] +
             (static_cast<std::int64_t>(rows) + 1) * rowHeight <=
         end;
}
static_assert(hasRoom(ReadingBlock::planetary, astro::planetCount, keepY),
              "the planets' rows have no room");
static_assert(hasRoom(ReadingBlock::elemental, astro::planetPairCount,
                      headingY[static_cast<std::size_t>(ReadingBlock::natal)]),
              "the elements' rows have no room");
static_assert(hasRoom(ReadingBlock::natal, 3 + astro::planetCount, pageEndY),
              "the natal rows have no room");

/// The panel of one moment and place, drawn piece by piece.
class Panel {
 public:
  Panel(SvgWriter& svg, const Nativity& nativity, MarkRecorder& marks)
      : svg_(svg), nativity_(nativity), marks_(marks) {}

  void draw() {
    ReadingBlock drawn = ReadingBlock::count;
    std::int64_t y = 0;
    for (const ReadingLine& line : readingOf(nativity_)) {
      if (line.block != drawn) {
        drawn = line.block;
        y = headingY[static_cast<std::size_t>(drawn)];
        drawText(headingX, y, readingBlocks[static_cast<std::size_t>(drawn)].heading);
      }
      y += rowHeight;
      drawLine(line, y);
    }
    drawKeep();
  }

 private:
  void drawText(std::int64_t x, std::int64_t y, std::string_view text) {
    beginText(svg_, x, y, "6").endWithText(text);
    marks_.panelText(x, y, text, 6.0);
  }

  void drawLine(const ReadingLine& line, std::int64_t y) {
    if (line.block == ReadingBlock::planetary) {
      drawPlanet(line, y);
    } else if (line.block == ReadingBlock::elemental) {
      drawElement(line, y);
    } else {
      drawText(rowX, y, line.subject + (line.isOfPlanet ? " - " : ": ") + line.sign + line.verdict);
    }
  }

  void drawPlanet(const ReadingLine& line, std::int64_t y) {
    drawText(rowX, y, line.subject);
    drawText(500, y, line.sign);
    drawText(650, y, line.verdict);
    svg_.element("circle")
        .attribute("cx", 405)
        .attribute("cy", y - 3)
        .attribute("r", 3)
        .attribute("fill", line.color)
        .endEmpty();
  }

  void drawElement(const ReadingLine& line, std::int64_t y) {
    drawText(rowX, y, line.subject);
    svg_.element("line")
        .attribute("x1", 402)
        .attribute("y1", y - 4)
        .attribute("x2", 408)
        .attribute("y2", y - 4)
        .attribute("stroke", line.color)
        .attribute("stroke-width", 1)
        .endEmpty();
    drawText(500, y, line.code);
    drawText(540, y, line.bodyPart);
    drawText(640, y, line.verdict);
  }

  void drawKeep() {
    const std::string_view verdict = keepVerdictOf(nativity_);
    if (isTwistedKeep(nativity_.planets)) {
      beginText(svg_, headingX, keepY, "9").endWithText(verdict);
      marks_.panelText(headingX, keepY, verdict, 9.0);
    } else {
      drawText(headingX, keepY, verdict);
    }
  }

  SvgWriter& svg_;
  const Nativity& nativity_;
  MarkRecorder& marks_;
};

}  // namespace

std::string elementLine(const Element& element, const Nativity& nativity) {
  const ReadingLine line = elementReading(element, nativity);
  return line.subject + ", " + line.code + ", " + line.bodyPart + ", " + line.verdict;
}

void drawInterpretation(SvgWriter& svg, const Nativity& nativity, MarkRecorder& marks) {
  Panel(svg, nativity, marks).draw();
}

}  // namespace veyruna::charts
