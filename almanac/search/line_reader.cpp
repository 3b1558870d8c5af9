#include "almanac/search/line_reader.h"

#include <optional>
#include <utility>

#include "almanac/search/condition_reader.h"
#include "astro/calendar.h"

namespace veyruna::almanac {

namespace {

const std::vector<std::string>& beginnings() {
  static const std::vector<std::string> words = [] {
    std::vector<std::string> all = {"not",      "any",   "all",       "eclipse",
                                    "hour",     "month", "ascending", "descending",
                                    "dominant", "power", "keep"};
    append(all, lightWords());
    append(all, keepWords());
    append(all, phaseWords());
    append(all, bodyWords());
    append(all, elementWords());
    append(all, starWords());
    return all;
  }();
  return words;
}

const std::string& beginningsInWords() {
  static const std::string text = [] {
    std::string all = "a body (" + joined(shown(bodyWords())) + "), an element (" +
                      joined(shown(elementWords())) + "), a name of the star map, " +
                      joined(shown(lightWords())) + ", ";
    for (const std::string& phase : shown(phaseWords())) {
      all += phase + " moon, ";
    }
    return all +
           "hour, month, eclipse, ascending sign, descending sign, dominant sphere, power, keep, "
           "not, any of or all of";
  }();
  return text;
}

/// How a group's parts are given in one line.
std::string exampleOf(Group group) {
  return group == Group::all ? "all of (A; B; C)" : "any of (A; B; C)";
}

}  // namespace

Opening LineReader::opening() {
  Opening opening;
  while (words_.passIf("not")) {
    if (++opening.negations > deepestNesting) {
      words_.refuseDepth();
    }
  }
  opening.group = group();
  if (!words_.isAt(":")) {
    words_.refuse("a colon and the parts on lines below, or in parentheses: " +
                  exampleOf(opening.group));
  }
  words_.expect(":");
  if (!words_.isAtEnd()) {
    words_.refuse("the parts on lines below that are indented further");
  }
  return opening;
}

Condition LineReader::whole(int depth) {
  Condition read = condition(depth);
  if (!words_.isAtEnd()) {
    words_.refuse("nothing more: each condition is one argument or one line");
  }
  return read;
}

Condition LineReader::condition(int depth) {
  if (depth > deepestNesting) {
    words_.refuseDepth();
  }
  if (words_.passIf("not")) {
    return {Not{{condition(depth + 1)}}};
  }
  if (words_.isAt("any") || words_.isAt("all")) {
    return grouped(depth);
  }
  if (const auto body = words_.passIfOneOf(bodyWords())) {
    return afterBody(*body);
  }
  if (const auto phase = words_.passIfOneOf(phaseWords())) {
    words_.expect("moon");
    return {MoonIs{*phase}};
  }
  if (const auto element = words_.passIfOneOf(elementWords())) {
    return {ElementIs{*element, words_.oneOf(strengthWords(), "a strength")}};
  }
  if (const auto star = words_.passIfOneOf(starWords())) {
    words_.expect("above");
    return {StarAbove{*star, altitude()}};
  }
  if (std::optional<Condition> read = ofThePanel()) {
    return *std::move(read);
  }
  if (std::optional<Condition> read = ofTheClock()) {
    return *std::move(read);
  }
  if (words_.passIf("eclipse")) {
    return {EclipseLasts{}};
  }
  words_.refuse(beginningsInWords(), beginnings());
}

std::optional<Condition> LineReader::ofThePanel() {
  if (words_.isAt("ascending") || words_.isAt("descending")) {
    const bool isDescending = words_.passIf("descending") || !words_.passIf("ascending");
    words_.expect("sign");
    words_.passIf(":");
    return Condition{RisingSign{words_.oneOf(signWords(), "a sign"), isDescending}};
  }
  if (words_.passIf("dominant")) {
    words_.expect("sphere");
    words_.passIf(":");
    return Condition{DominantSphere{words_.oneOf(sphereWords(), "one of")}};
  }
  if (words_.passIf("power")) {
    words_.passIf(":");
    return Condition{PowerIs{words_.oneOf(powerWords(), "one of")}};
  }
  if (words_.passIf("keep")) {
    return Condition{KeepIs{words_.oneOf(keepWords(), "one of")}};
  }
  if (const auto isTwisted = words_.passIfOneOf(keepWords())) {
    words_.expect("keep");
    return Condition{KeepIs{*isTwisted}};
  }
  return std::nullopt;
}

std::optional<Condition> LineReader::ofTheClock() {
  if (words_.passIf("hour")) {
    const double from = words_.hour();
    words_.expect("to");
    const double to = words_.hour();
    if (from == to) {
      words_.refuse("another hour than the first; for the whole day hour 0 to 24", {}, 1);
    }
    return Condition{HourBetween{from, to}};
  }
  if (words_.passIf("month")) {
    const std::optional<int> number = words_.passIfCount(astro::monthsPerYear);
    return Condition{MonthIs{
        number ? *number : words_.oneOf(monthWords(), "a month by number, 1 to 12, or name")}};
  }
  const std::optional<Light> light = words_.passIfOneOf(lightWords());
  const bool isAlone = words_.isAtEnd() || words_.isAt(";") || words_.isAt(")");
  if (light == Light::day && !isAlone) {
    if (const auto number = words_.passIfCount(astro::daysPerMonth)) {
      return Condition{DayIs{*number}};
    }
    words_.refuse("a day of the month, 1 to 30, or nothing for the time of light");
  }
  return light ? std::optional(Condition{LightIs{*light}}) : std::nullopt;
}

Condition LineReader::grouped(int depth) {
  const Group asked = group();
  if (!words_.passIf("(")) {
    words_.refuse("the parts in parentheses: " + exampleOf(asked));
  }
  std::vector<Condition> parts;
  do {
    parts.push_back(condition(depth + 1));
  } while (words_.passIf(";"));
  if (!words_.passIf(")")) {
    words_.refuse("\";\" before the next part, or \")\" after the last");
  }
  return asked == Group::any ? Condition{AnyOf{std::move(parts)}}
                             : Condition{AllOf{std::move(parts)}};
}

Condition LineReader::afterBody(Body body) {
  if (words_.passIf("in") || words_.passIf("house")) {
    words_.passIf(":");
    return {InSign{body, words_.oneOf(signWords(), "a sign")}};
  }
  if (words_.passIf("conjunct")) {
    return together(body, false);
  }
  if (words_.passIf("opposite")) {
    return together(body, true);
  }
  if (words_.passIf("above")) {
    return {BodyAbove{body, altitude()}};
  }
  std::vector<std::string> accepted = {"in", "house", "conjunct", "opposite", "above"};
  if (const auto planet = planetOf(body)) {
    if (words_.passIf("natal")) {
      return {NatalIs{*planet, words_.oneOf(strengthWords(), "a strength")}};
    }
    if (words_.passIf("favours")) {
      return {Favours{*planet, words_.oneOf(sphereWords(), "one of")}};
    }
    if (words_.passIf("backward")) {
      return {Running{*planet, true}};
    }
    if (words_.passIf("forward")) {
      return {Running{*planet, false}};
    }
    accepted.insert(accepted.end(), {"natal", "favours", "backward", "forward"});
  } else if (body == Body::ivro) {
    if (const auto phase = words_.passIfOneOf(phaseWords())) {
      return {MoonIs{*phase}};
    }
    append(accepted, phaseWords());
  }
  words_.refuse(joined(accepted), accepted);
}

Condition LineReader::together(Body body, bool isOpposite) {
  Words<Body> others = bodyWords();
  std::erase_if(others, [body](const Word<Body>& word) { return word.meaning == body; });
  const Body other = words_.oneOf(others, "another body");
  constexpr double usual = 2.0;
  const double within =
      words_.passIf("within")
          ? words_.degrees(0.0, false, 180.0, "a number of degrees above 0 and up to 180")
          : usual;
  return {Together{body, other, isOpposite, within}};
}

double LineReader::altitude() {
  return words_.passIf("horizon")
             ? 0.0
             : words_.degrees(-90.0, true, 90.0, "horizon, or a number of degrees from -90 to 90");
}

Group LineReader::group() {
  const bool isAll = words_.passIf("all");
  if (!isAll) {
    words_.expect("any");
  }
  words_.expect("of");
  return isAll ? Group::all : Group::any;
}

}  // namespace veyruna::almanac
