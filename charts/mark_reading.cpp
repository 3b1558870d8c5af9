#include "charts/mark_reading.h"

#include <algorithm>
#include <set>
#include <string_view>

#include "astro/arc.h"
#include "astro/horizon.h"
#include "astro/number_text.h"
#include "astro/rotation.h"
#include "charts/verdict.h"
#include "reports/positions.h"
#include "reports/zodiac.h"

namespace veyruna::charts {

namespace {

std::string withoutBlanks(std::string_view padded) {
  const std::size_t begin = padded.find_first_not_of(' ');
  return begin == std::string_view::npos
             ? std::string()
             : std::string(padded.substr(begin, padded.find_last_not_of(' ') + 1 - begin));
}

std::string joined(const std::vector<std::string>& parts, std::string_view last) {
  std::string text;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    text.append(i == 0 ? "" : i + 1 < parts.size() ? std::string_view(", ") : last);
    text.append(parts[i]);
  }
  return text;
}

reports::PositionRow rowOf(const ChartMark& body, const astro::Observer& observer) {
  return reports::positionRows(observer).at(body.ordinal);
}

std::string signOf(const ChartMark& mark) {
  return std::string(reports::plainName(reports::signAt(mark.ecliptic->phi)));
}

std::string altitudeOf(const ChartMark& mark, const astro::Observer& observer) {
  const astro::Vec3D equatorial = rotated(*mark.ecliptic, astro::eclipticToEquatorial);
  return withoutBlanks(astro::Arc(toHorizon(equatorial, observer).theta).degMinText());
}

std::string magnitudeOf(const ChartMark& star) {
  std::string text;
  astro::appendFixed(text, star.magnitude, 1);
  return text;
}

/// Where the sky's wheel of signs is meant, and not what stands in it.
bool isOnEcliptic(const ChartMark& mark) {
  return mark.kind == MarkKind::ascendant || mark.kind == MarkKind::signBoundary;
}

bool isStar(const ChartMark& mark) {
  return mark.kind == MarkKind::star || mark.kind == MarkKind::backgroundStar;
}

/// The wheel has all of them, below the horizon, too, and the ascendant; the map what is above it.
std::string bodiesSentence(const ChartMarks& marks, const astro::Observer& observer) {
  std::vector<std::string> bodies;
  std::string_view where = "In sight are ";
  for (const ChartMark& mark : marks) {
    if (mark.kind == MarkKind::body) {
      bodies.push_back(mark.name + " in " + withoutBlanks(rowOf(mark, observer).sign));
    } else if (mark.kind == MarkKind::ascendant) {
      bodies.push_back("the ascendant in " + signOf(mark));
      where = "On the wheel are ";
    }
  }
  return bodies.empty() ? "None of the bodies is in sight."
                        : std::string(where) + joined(bodies, " and ") + ".";
}

std::string figuresSentence(const ChartMarks& marks) {
  std::set<std::string> figures;
  std::size_t stars = 0;
  for (const ChartMark& mark : marks) {
    if (mark.kind == MarkKind::star) {
      figures.insert(mark.name);
      ++stars;
    }
  }
  return "The stars around them are " + std::to_string(stars) + " of " +
         std::to_string(figures.size()) + " figures.";
}

/// The keep and the strongest of the elements; empty where there is no interpretation.
std::string interpretationSentence(const ChartMarks& marks) {
  const auto rank = [&](const ChartMark& chord) {
    return std::ranges::find_if(
               strengths,
               [&](const StrengthEntry& entry) { return chord.line.ends_with(entry.name); }) -
           strengths.begin();
  };
  const ChartMark* strongest = nullptr;
  for (const ChartMark& mark : marks) {
    if (mark.kind == MarkKind::chord && (strongest == nullptr || rank(mark) < rank(*strongest))) {
      strongest = &mark;
    }
  }
  if (strongest == nullptr || marks.back().kind != MarkKind::panelLine) {
    return {};
  }
  // The keep's line is drawn last of all.
  const std::string& keep = marks.back().name;
  return "The interpretation has a " + keep.substr(0, keep.find(' ')) +
         " Keep, and the strongest of its elements is " + strongest->line + ".";
}

}  // namespace

std::vector<std::string> readOut(const ChartMark& mark, const astro::Observer& observer) {
  std::vector<std::string> lines = {mark.name};
  if (mark.kind == MarkKind::body) {
    const reports::PositionRow row = rowOf(mark, observer);
    lines.push_back("Altitude: " + withoutBlanks(row.altitude));
    lines.push_back("Azimuth: " + withoutBlanks(row.azimuth));
    lines.push_back("Ec. Longitude: " + withoutBlanks(row.ecLong));
    lines.push_back("Sign: " + withoutBlanks(row.sign));
  } else if (isStar(mark)) {
    if (mark.kind == MarkKind::star) {
      lines.push_back("Magnitude: " + magnitudeOf(mark));
    }
    lines.push_back("Altitude: " + altitudeOf(mark, observer));
    lines.push_back("Sign: " + signOf(mark));
  } else if (isOnEcliptic(mark)) {
    lines.push_back("Ec. Longitude: " + withoutBlanks(astro::Arc(mark.ecliptic->phi).degMinText()));
    lines.push_back("Sign: " + signOf(mark));
  } else if (mark.line.size() > mark.name.size()) {
    lines.push_back(mark.line.substr(mark.name.size() + 2));
  }
  return lines;
}

std::string spoken(const ChartMark& mark, const astro::Observer& observer) {
  if (mark.kind == MarkKind::body) {
    const reports::PositionRow row = rowOf(mark, observer);
    return mark.name + ", " + withoutBlanks(row.sign) + ", altitude " + withoutBlanks(row.altitude);
  }
  if (isStar(mark)) {
    const std::string brightness =
        mark.kind == MarkKind::star ? ", star of magnitude " + magnitudeOf(mark) : "";
    return mark.name + ", " + signOf(mark) + ", altitude " + altitudeOf(mark, observer) +
           brightness;
  }
  if (isOnEcliptic(mark)) {
    return mark.name + ", " + signOf(mark);
  }
  return mark.line.empty() ? mark.name : mark.line;
}

std::string summary(const ChartMarks& marks, const astro::Observer& observer) {
  const std::string interpretation = interpretationSentence(marks);
  return bodiesSentence(marks, observer) + " " +
         (interpretation.empty() ? figuresSentence(marks) : interpretation);
}

}  // namespace veyruna::charts
