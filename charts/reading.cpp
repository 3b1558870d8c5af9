#include "charts/reading.h"

#include <algorithm>

#include "astro/angle.h"
#include "charts/body_style.h"
#include "charts/element.h"
#include "charts/verdict.h"
#include "reports/zodiac.h"

namespace veyruna::charts {

namespace {

using astro::Planet;
using reports::signNameWithMeaning;

constexpr bool everyBlockHasItsHeading() {
  for (std::size_t i = 0; i < readingBlocks.size(); ++i) {
    if (readingBlocks[i].block != static_cast<ReadingBlock>(i) ||
        readingBlocks[i].heading.empty()) {
      return false;
    }
  }
  return true;
}
static_assert(everyBlockHasItsHeading(), "a block of the interpretation has no heading");

/// "Bralo (Inspiration)".
std::string withGift(std::string name, Planet planet) {
  return name.append(" (").append(styleOf(planet).gift).append(")");
}

std::string inCapitals(std::string_view name) {
  std::string capitals(name);
  for (char& letter : capitals) {
    letter = letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
  }
  return capitals;
}

ReadingLine signLine(ReadingBlock block, std::string_view subject, double longitude) {
  return {.block = block,
          .subject = std::string(subject),
          .sign = std::string(signNameWithMeaning(longitude))};
}

ReadingLine verdictLine(ReadingBlock block, std::string_view subject, std::string_view verdict) {
  return {.block = block, .subject = std::string(subject), .verdict = std::string(verdict)};
}

ReadingLine planetLine(Planet planet, const Nativity& nativity) {
  const double longitude = nativity.planets[indexOf(planet)];
  return {.block = ReadingBlock::planetary,
          .subject = withGift(std::string(displayName(planet)), planet),
          .sign = std::string(signNameWithMeaning(longitude)),
          .verdict = std::string(entryOf(sphereOf(longitude, nativity)).verdict),
          .color = shadeOf(styleOf(planet).color).name,
          .isOfPlanet = true};
}

ReadingLine natalLine(Planet planet, const Nativity& nativity) {
  ReadingLine line =
      verdictLine(ReadingBlock::natal, withGift(inCapitals(displayName(planet)), planet),
                  entryOf(strengthOf(nativity.planets[indexOf(planet)], nativity.ascendant)).name);
  line.isOfPlanet = true;
  return line;
}

}  // namespace

ReadingLine elementReading(const Element& element, const Nativity& nativity) {
  ReadingLine line{
      .block = ReadingBlock::elemental,
      .subject = std::string(element.name),
      .bodyPart = std::string(element.bodyPart),
      .verdict = std::string(entryOf(strengthOf(nativity.planets[indexOf(element.pair.first)],
                                                nativity.planets[indexOf(element.pair.second)]))
                                 .name),
      .color = element.color};
  appendCode(line.code, element.pair);
  return line;
}

std::vector<ReadingLine> readingOf(const Nativity& nativity) {
  using enum ReadingBlock;
  std::vector<ReadingLine> lines = {
      signLine(character, "House", nativity.sun), signLine(fate, "House", nativity.moon),
      verdictLine(fate, "Power", entryOf(powerOf(nativity.moonLatitude)).verdict)};
  for (const Planet planet : astro::allPlanets) {
    lines.push_back(planetLine(planet, nativity));
  }
  for (const Element& element : elements) {
    lines.push_back(elementReading(element, nativity));
  }
  lines.push_back(verdictLine(natal, "Dominant Sphere",
                              entryOf(sphereOf(nativity.ascendant, nativity)).verdict));
  lines.push_back(signLine(natal, "Ascending Sign (Purpose)", nativity.ascendant));
  lines.push_back(
      signLine(natal, "Descending Sign (Displacement)", nativity.ascendant + astro::pi));
  for (const Planet planet : astro::allPlanets) {
    lines.push_back(natalLine(planet, nativity));
  }
  return lines;
}

std::string_view keepVerdictOf(const Nativity& nativity) {
  return keepEntry(isTwistedKeep(nativity.planets)).verdict;
}

}  // namespace veyruna::charts
