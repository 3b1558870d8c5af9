#include <string>
#include <string_view>

#include "almanac/search/condition.h"
#include "almanac/search/overloaded.h"
#include "almanac/search/spelling.h"
#include "almanac/search/vocabulary.h"
#include "astro/calendar.h"
#include "astro/clock.h"
#include "astro/number_text.h"

namespace veyruna::almanac {

namespace {

using std::string;
using std::string_view;

/// "22:00" where that is the hour, else the number.
string hourText(double hour) {
  const string clock = astro::clockText(hour);
  return astro::hourFromText(clock) == hour ? clock : astro::shortestText(hour);
}

string textOfParts(string_view opening, const std::vector<Condition>& parts) {
  string text(opening);
  text += " (";
  for (std::size_t i = 0; i < parts.size(); ++i) {
    text.append(i == 0 ? "" : "; ").append(textOf(parts[i]));
  }
  return text += ')';
}

string aboveText(string name, double degrees) {
  return name.append(" above ").append(degrees == 0.0 ? "horizon" : astro::shortestText(degrees));
}

string bodyName(Body body) {
  return string(wordOf(body));
}

string planetName(astro::Planet planet) {
  return wordFor(planetWords(), planet);
}

}  // namespace

string textOf(const Condition& condition) {
  return std::visit(
      Overloaded{
          [](const InSign& in) {
            return bodyName(in.body) + " in " + wordFor(signWords(), in.sign);
          },
          [](const Together& pair) {
            return bodyName(pair.body) + (pair.isOpposite ? " opposite " : " conjunct ") +
                   bodyName(pair.other) + " within " + astro::shortestText(pair.withinDegrees);
          },
          [](const MoonIs& moon) { return "moon " + wordFor(phaseWords(), moon.phase); },
          [](const Running& running) {
            return planetName(running.planet) + (running.isBackward ? " backward" : " forward");
          },
          [](const EclipseLasts&) { return string("eclipse"); },
          [](const RisingSign& rising) {
            return (rising.isDescending ? "descending sign " : "ascending sign ") +
                   wordFor(signWords(), rising.sign);
          },
          [](const PowerIs& is) { return "power " + wordFor(powerWords(), is.power); },
          [](const KeepIs& is) { return "keep " + wordFor(keepWords(), is.isTwisted); },
          [](const ElementIs& is) {
            return lowered(is.element->name) + " " + wordFor(strengthWords(), is.strength);
          },
          [](const NatalIs& is) {
            return planetName(is.planet) + " natal " + wordFor(strengthWords(), is.strength);
          },
          [](const Favours& favours) {
            return planetName(favours.planet) + " favours " +
                   wordFor(sphereWords(), favours.sphere);
          },
          [](const DominantSphere& is) {
            return "dominant sphere " + wordFor(sphereWords(), is.sphere);
          },
          [](const BodyAbove& is) { return aboveText(bodyName(is.body), is.degrees); },
          [](const StarAbove& is) { return aboveText(wordFor(starWords(), is.star), is.degrees); },
          [](const LightIs& is) { return wordFor(lightWords(), is.light); },
          [](const HourBetween& hours) {
            return "hour " + hourText(hours.from) + " to " + hourText(hours.to);
          },
          [](const MonthIs& is) { return "month " + wordFor(monthWords(), is.monthIndex); },
          [](const DayIs& is) { return "day " + std::to_string(is.dayIndex + 1); },
          [](const AnyOf& any) { return textOfParts("any of", any.parts); },
          [](const AllOf& all) { return textOfParts("all of", all.parts); },
          [](const Not& negation) { return "not " + textOf(negation.parts.front()); },
      },
      condition.form);
}

}  // namespace veyruna::almanac
