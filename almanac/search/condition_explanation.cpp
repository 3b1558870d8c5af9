#include <string>
#include <string_view>

#include "almanac/search/condition.h"
#include "almanac/search/overloaded.h"
#include "almanac/search/vocabulary.h"
#include "astro/number_text.h"
#include "charts/star_catalogue.h"

namespace veyruna::almanac {

namespace {

using std::string;
using std::string_view;

string nameOf(astro::Planet planet) {
  return string(displayName(planet));
}

string degreesOf(double degrees) {
  return astro::shortestText(degrees) + "°";
}

string heightOf(double degrees) {
  return degrees == 0.0 ? "above the horizon" : "higher than " + degreesOf(degrees);
}

string_view lightOf(Light light) {
  switch (light) {
    case Light::day:
      return "it is day: the sun stands above the horizon";
    case Light::twilight:
      return "it is twilight: the sun stands on the horizon or less than 6° below it";
    default:
      return "it is night: the sun stands 6° or more below the horizon";
  }
}

string_view phaseOf(Phase phase) {
  switch (phase) {
    case Phase::full:
      return "the moon is within 6° of full";
    case Phase::fresh:
      return "the moon is within 6° of new";
    case Phase::waxing:
      return "the moon is waxing";
    default:
      return "the moon is not waxing";
  }
}

/// One form that has no parts, in a clause.
string clauseOf(const Condition& condition, bool isLocal) {
  const string clock = isLocal ? "the place's own clock" : "standard time";
  return std::visit(
      Overloaded{
          [](const InSign& in) {
            return string(nameOf(in.body)) + " stands in " + string(in.sign->nameWithMeaning);
          },
          [](const Together& pair) {
            return string(nameOf(pair.body)).append(" and ").append(nameOf(pair.other)) +
                   " stand less than " + degreesOf(pair.withinDegrees) + " from " +
                   (pair.isOpposite ? "opposite longitudes" : "one longitude");
          },
          [](const MoonIs& moon) { return string(phaseOf(moon.phase)); },
          [](const Running& running) {
            return nameOf(running.planet) + " runs " +
                   (running.isBackward ? "backward" : "forward");
          },
          [](const EclipseLasts&) { return string("an eclipse lasts, wherever it can be seen"); },
          [](const RisingSign& rising) {
            return string("the ") + (rising.isDescending ? "descending" : "ascending") +
                   " sign is " + string(rising.sign->nameWithMeaning);
          },
          [](const PowerIs& is) { return "power: " + string(entryOf(is.power).verdict); },
          [](const KeepIs& is) {
            return "keep: " + string(charts::keepEntry(is.isTwisted).verdict);
          },
          [](const ElementIs& is) {
            return string(is.element->name) + ", " + nameOf(is.element->pair.first) + " with " +
                   nameOf(is.element->pair.second) + ", is " +
                   wordFor(strengthWords(), is.strength);
          },
          [](const NatalIs& is) {
            return "the natal force of " + nameOf(is.planet) + " is " +
                   wordFor(strengthWords(), is.strength);
          },
          [](const Favours& favours) {
            return nameOf(favours.planet) + " favours: " + string(entryOf(favours.sphere).verdict);
          },
          [](const DominantSphere& is) {
            return "dominant sphere: " + string(entryOf(is.sphere).verdict);
          },
          [](const BodyAbove& is) {
            return string(nameOf(is.body)) + " stands " + heightOf(is.degrees);
          },
          [](const StarAbove& is) {
            const charts::FixedStar& star = charts::builtInCatalogue().stars()[is.star];
            return star.name +
                   (star.dotSize() > 0.0 ? "" : ", where the star map writes its name,") +
                   " stands " + heightOf(is.degrees);
          },
          [](const LightIs& is) { return string(lightOf(is.light)); },
          [&](const HourBetween&) { return textOf(condition) + ", by " + clock; },
          [&](const MonthIs&) { return textOf(condition) + ", by " + clock; },
          [&](const DayIs&) { return textOf(condition) + " of the month, by " + clock; },
          [](const AnyOf&) { return string(); },
          [](const AllOf&) { return string(); },
          [](const Not&) { return string(); },
      },
      condition.form);
}

void append(string& text, const Condition& condition, bool isLocal, std::size_t depth);

void appendParts(string& text, string_view opening, const std::vector<Condition>& parts,
                 bool isLocal, std::size_t depth) {
  text.append(2 * depth, ' ').append(opening).append(":\n");
  for (const Condition& part : parts) {
    append(text, part, isLocal, depth + 1);
  }
}

void append(string& text, const Condition& condition, bool isLocal, std::size_t depth) {
  if (const auto* const any = std::get_if<AnyOf>(&condition.form)) {
    appendParts(text, "at least one of these", any->parts, isLocal, depth);
  } else if (const auto* const all = std::get_if<AllOf>(&condition.form)) {
    appendParts(text, "all of these", all->parts, isLocal, depth);
  } else if (const auto* const negation = std::get_if<Not>(&condition.form)) {
    appendParts(text, "not this", negation->parts, isLocal, depth);
  } else {
    text.append(2 * depth, ' ').append(clauseOf(condition, isLocal)).append("\n");
  }
}

}  // namespace

string explanationOf(const Condition& condition, bool isLocal) {
  string text = "Asked:\n";
  append(text, condition, isLocal, 1);
  text += "Not asked:\n";
  const Uses uses = usesOf(condition);
  if (!uses.sky && !uses.ascendant) {
    text += "  where the sun, the moon and the planets stand among the signs\n";
  }
  if (!uses.horizon) {
    text += "  a horizon: what is meant may stand below it\n";
  }
  if (!uses.light && !uses.hour) {
    text += "  an hour: it may be day or night\n";
  } else if (!uses.light) {
    text += "  light: the hours are those of a clock, be it day or night\n";
  } else if (!uses.hour) {
    text += "  an hour of the clock\n";
  }
  if (!uses.date) {
    text += "  a date: any day and month will do\n";
  }
  if (!needsPlace(condition, isLocal)) {
    text += "  a place: it is the same everywhere\n";
  }
  return text;
}

}  // namespace veyruna::almanac
