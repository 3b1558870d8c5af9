// What a chart says it has drawn where, beside what it has drawn.
#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <rapidcheck/gtest.h>
#include <set>
#include <tuple>

#include "astro/number_text.h"
#include "charts/horoscope.h"
#include "charts/star_map.h"
#include "tests/charts/sky_generators.h"
#include "tests/charts/xml_check.h"

namespace veyruna::charts {
namespace {

using tests::readXml;
using tests::select;
using tests::XmlElement;

/// A dot of a chart to the hundredth, as it is written.
using Dot = std::tuple<long, long, long>;

long hundredths(double number) {
  std::string written;
  astro::appendFixed(written, number, 2);
  return std::lround(tests::leadingNumber(written) * 100.0);
}

Dot dot(double x, double y, double radius) {
  return {hundredths(x), hundredths(y), hundredths(radius)};
}

struct Drawn {
  std::string svg;
  ChartMarks marks;
  std::vector<XmlElement> elements = readXml(svg);
};

Drawn drawnStarMap(const astro::Observer& observer) {
  ChartMarks marks;
  std::string svg = starMap(observer, builtInCatalogue(), &marks);
  return {std::move(svg), std::move(marks)};
}

Drawn drawnHoroscope(const astro::Observer& observer, bool blackAndWhite = false) {
  ChartMarks marks;
  std::string svg = horoscope(blackAndWhite, observer, builtInCatalogue(), &marks);
  return {std::move(svg), std::move(marks)};
}

std::multiset<Dot> dotsOf(const ChartMarks& marks) {
  std::multiset<Dot> dots;
  for (const ChartMark& mark : marks) {
    const bool isLine = mark.kind == MarkKind::chord || mark.kind == MarkKind::signBoundary;
    for (const Stretch& stretch : mark.dots) {
      if (!isLine) {
        dots.insert(dot(stretch.from.x, stretch.from.y, stretch.radius));
      }
    }
  }
  return dots;
}

/// The dots that are drawn and not cut off by an edge, but for what is part of the page itself, as
/// is the hollow circle of a latitude, which is small near a pole.
std::multiset<Dot> dotsOf(const std::vector<XmlElement>& elements, double edge) {
  std::multiset<Dot> dots;
  for (const XmlElement& circle : select(elements, "circle")) {
    constexpr double largest = 5.0;
    const double x = circle.number("cx");
    const double y = circle.number("cy");
    const double radius = circle.number("r");
    const auto fill = circle.attributes.find("fill");
    const bool isHollow = fill != circle.attributes.end() && fill->second == "none";
    if (!isHollow && radius <= largest && std::hypot(x - 180.0, y - 180.0) - radius < edge) {
      dots.insert(dot(x, y, radius));
    }
  }
  return dots;
}

std::vector<const ChartMark*> ofKind(const ChartMarks& marks, MarkKind kind) {
  std::vector<const ChartMark*> found;
  for (const ChartMark& mark : marks) {
    if (mark.kind == kind) {
      found.push_back(&mark);
    }
  }
  return found;
}

RC_GTEST_PROP(Marks, LeaveTheDocumentsAsTheyAre, ()) {
  const astro::Observer observer = tests::someObserver();
  RC_ASSERT(drawnStarMap(observer).svg == starMap(observer, builtInCatalogue()));
  for (const bool blackAndWhite : {false, true}) {
    RC_ASSERT(drawnHoroscope(observer, blackAndWhite).svg ==
              horoscope(blackAndWhite, observer, builtInCatalogue()));
  }
}

/// Whether the rounding of its written place decides if an edge cuts a dot off.
bool isJustAtEdge(const Dot& dot, double edge) {
  const auto [x, y, radius] = dot;
  const double distance =
      std::hypot(static_cast<double>(x) - 18'000.0, static_cast<double>(y) - 18'000.0) -
      static_cast<double>(radius);
  return std::abs(distance - 100.0 * edge) < 1.0;
}

/// Those that are in one of them alone and clear of the edge; none where both are the same.
std::vector<Dot> difference(const std::multiset<Dot>& a, const std::multiset<Dot>& b, double edge) {
  std::vector<Dot> alone;
  std::ranges::set_symmetric_difference(a, b, std::back_inserter(alone));
  std::erase_if(alone, [edge](const Dot& dot) { return isJustAtEdge(dot, edge); });
  return alone;
}

RC_GTEST_PROP(Marks, AreTheDotsThatAreDrawn, ()) {
  const astro::Observer observer = tests::someObserver();
  const Drawn map = drawnStarMap(observer);
  RC_ASSERT(difference(dotsOf(map.marks), dotsOf(map.elements, 190.0), 190.0) ==
            std::vector<Dot>());
  const Drawn wheel = drawnHoroscope(observer);
  RC_ASSERT(difference(dotsOf(wheel.marks), dotsOf(wheel.elements, 180.0), 180.0) ==
            std::vector<Dot>());
}

TEST(Marks, TheCircleOfALatitudeNearThePoleIsNoDot) {
  const Drawn wheel = drawnHoroscope({.baseTime = -1e6, .latitude = 1.53, .longitude = 0.0});
  EXPECT_EQ(difference(dotsOf(wheel.marks), dotsOf(wheel.elements, 180.0), 180.0),
            std::vector<Dot>());
}

RC_GTEST_PROP(Marks, HaveTheNamesThatAreDrawn, ()) {
  const Drawn map = drawnStarMap(tests::someObserver());
  std::multiset<std::pair<std::string, long>> written;
  for (const XmlElement& text : select(map.elements, "text", "font-size", "5")) {
    written.insert({text.text == "IVRO" ? "Ivro" : text.text, hundredths(text.number("x"))});
  }
  std::multiset<std::pair<std::string, long>> marked;
  for (const ChartMark& mark : map.marks) {
    for (const Stretch& letters : mark.letters) {
      const bool isCentred = mark.kind == MarkKind::figureName;
      marked.insert({mark.name, hundredths((isCentred ? letters.middle() : letters.from).x)});
    }
  }
  RC_ASSERT((marked == written));
}

RC_GTEST_PROP(Marks, NamesAlongTheRimBeginWhereTheyAreWritten, ()) {
  const Drawn wheel = drawnHoroscope(tests::someObserver());
  std::map<std::string, const ChartMark*> byName;
  for (const ChartMark& mark : wheel.marks) {
    if (!mark.letters.empty() && mark.kind != MarkKind::panelLine) {
      byName[mark.name] = &mark;
    }
  }
  for (const XmlElement& name : select(wheel.elements, "textPath")) {
    const double turns = tests::leadingNumber(name.attribute("startOffset")) / 100.0;
    const double radius = name.attribute("xlink:href") == "#rim" ? 175.0 : 170.0;
    RC_ASSERT(byName.contains(name.text));
    const PagePoint begin = byName[name.text]->letters.front().from;
    const double right = radius * std::sin(turns * astro::twoPi);
    const double up = radius * std::cos(turns * astro::twoPi);
    RC_ASSERT(std::hypot(begin.x - 180.0 - right, begin.y - 180.0 + up) < 3.0);
  }
}

RC_GTEST_PROP(Marks, AreTheChordsWithTheirRowOfThePanel, ()) {
  const Drawn wheel = drawnHoroscope(tests::someObserver());
  const auto chords = ofKind(wheel.marks, MarkKind::chord);
  const auto lines = ofKind(wheel.marks, MarkKind::panelLine);
  std::vector<XmlElement> drawn = select(wheel.elements, "line", "stroke-width", "0.8");
  std::erase_if(drawn, [](const XmlElement& line) {
    return line.attribute("x1").find('.') != std::string::npos;  // the signs' ticks
  });
  RC_ASSERT(chords.size() == 6U);
  RC_ASSERT(drawn.size() == chords.size());
  for (std::size_t i = 0; i < chords.size(); ++i) {
    const Stretch& chord = chords[i]->dots.front();
    RC_ASSERT(chord.from.x == drawn[i].number("x1"));
    RC_ASSERT(chord.from.y == drawn[i].number("y1"));
    RC_ASSERT(chord.to.x == drawn[i].number("x2"));
    RC_ASSERT(chord.to.y == drawn[i].number("y2"));
    RC_ASSERT(std::ranges::count(lines, chords[i]->line, &ChartMark::line) == 1);
  }
}

RC_GTEST_PROP(Marks, AreTheLinesOfThePanel, ()) {
  const Drawn wheel = drawnHoroscope(tests::someObserver());
  const auto lines = ofKind(wheel.marks, MarkKind::panelLine);
  std::map<long, std::string> written;
  std::map<long, double> begins;
  for (const XmlElement& text : select(wheel.elements, "text")) {
    if (text.attributes.contains("x") && text.number("x") >= 400.0) {
      const long y = std::lround(text.number("y"));
      written[y] += (written.contains(y) && !written[y].empty() ? ", " : "") + text.text;
      begins.try_emplace(y, text.number("x"));
    }
  }
  RC_ASSERT(lines.size() == written.size());
  for (const ChartMark* const line : lines) {
    const Stretch& letters = line->letters.front();
    // Two lines may say the same.
    RC_ASSERT(std::ranges::any_of(written, [&](const auto& row) {
      const auto& [y, text] = row;
      const PagePoint inside{begins[y] + 1.0, static_cast<double>(y) - 2.0};
      return text == line->line && letters.from.x == begins[y] && letters.distanceTo(inside) == 0.0;
    }));
  }
}

TEST(Marks, OfAFiguresStarsHaveTheFiguresNameAsItIsWrittenInTheSky) {
  std::set<std::string> names;
  for (const FixedStar& star : builtInCatalogue().stars()) {
    if (!star.name.starts_with('_')) {
      names.insert(star.name);
    }
  }
  std::size_t stars = 0;
  for (const double turn : {0.0, 0.25, 0.5, 0.75}) {
    for (const double latitude : {-1.0, 1.0}) {
      for (const ChartMark& mark : drawnStarMap({turn, latitude, 0.0}).marks) {
        if (mark.kind == MarkKind::star || mark.kind == MarkKind::figureName) {
          EXPECT_TRUE(names.contains(mark.name)) << mark.name;
          ++stars;
        }
      }
    }
  }
  EXPECT_GT(stars, 176U);
}

TEST(Marks, KeepTheirNumberFromChartToChart) {
  // A body or star is the same one on both charts and at every moment.
  std::map<std::pair<MarkKind, std::size_t>, std::string> names;
  for (const double t : {0.0, 0.3, 100.6}) {
    for (const Drawn& chart : {drawnStarMap({t, 0.7, 0.1}), drawnHoroscope({t, 0.7, 0.1})}) {
      std::set<std::pair<MarkKind, std::size_t>> seen;
      for (const ChartMark& mark : chart.marks) {
        if (mark.kind != MarkKind::panelLine) {
          const std::pair key(mark.kind, mark.ordinal);
          EXPECT_EQ(names.try_emplace(key, mark.name).first->second, mark.name);
        }
        EXPECT_TRUE(seen.emplace(mark.kind, mark.ordinal).second) << mark.name;
      }
    }
  }
}

TEST(Marks, OfWhatTheWheelsEdgeCutsOffThereAreNone) {
  for (int day = 0; day < 60; ++day) {
    for (const ChartMark& mark : drawnHoroscope({day * 0.5, 0.7, 0.1}).marks) {
      for (const Stretch& part : mark.dots) {
        EXPECT_LT(part.distanceTo({180.0, 180.0}), 180.5) << mark.name;
      }
    }
  }
}

}  // namespace
}  // namespace veyruna::charts
