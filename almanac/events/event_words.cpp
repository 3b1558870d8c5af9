#include "almanac/events/event_words.h"

#include <array>

#include "astro/angle.h"
#include "astro/calendar.h"
#include "astro/invariant.h"
#include "astro/lunar_events.h"
#include "astro/number_text.h"
#include "reports/zodiac.h"

namespace veyruna::almanac {

namespace {

/// The label without the name of its clock.
std::string momentOf(double baseTime) {
  const std::string label = astro::calendarLabel(baseTime);
  return label.substr(0, label.rfind(' '));
}

std::string named(Body body, std::string_view rest) {
  return std::string(nameOf(body)).append(rest);
}

std::string pairWords(const Event& event) {
  const bool isOpposite = event.kind == EventKind::opposition;
  std::string words = named(event.body, " and ").append(nameOf(event.other)) +
                      (isOpposite ? " stand opposite, " : " meet, ");
  astro::appendFixed(words, astro::degreesOf(event.separation), 2);
  words += isOpposite ? "° off" : "° apart";
  return words + "; within 2° from " + momentOf(*event.begin) + " to " + momentOf(*event.end);
}

std::string seasonWords(int quarter) {
  static constexpr std::array<std::string_view, 4> words = {
      "the sun at 0°, going north: day and night are equal",
      "the sun at 90°, farthest north: the north's longest day",
      "the sun at 180°, going south: day and night are equal",
      "the sun at 270°, farthest south: the south's longest day"};
  return std::string(words[static_cast<std::size_t>(quarter)]);
}

}  // namespace

std::string wordsOf(const Event& event) {
  switch (event.kind) {
    case EventKind::eclipse:
      return std::string(astro::lunarEventMeaning(event.code));
    case EventKind::moon:
      return event.isFull ? "full moon" : "new moon";
    case EventKind::conjunction:
    case EventKind::opposition:
      return pairWords(event);
    case EventKind::sign:
      return named(event.body, " enters ").append(reports::plainName(*event.sign)) +
             (event.isForward ? "" : ", moving backward");
    case EventKind::station:
      return named(event.body, event.isForward ? " turns forward" : " turns backward");
    case EventKind::season:
      return seasonWords(event.quarter);
    case EventKind::rise:
      return named(event.body, " rises");
    case EventKind::set:
      return named(event.body, " sets");
    case EventKind::culmination:
      return named(event.body, " culminates");
    case EventKind::count:
      break;
  }
  astro::requireInvariant(false, "an event is of a kind");
  return {};
}

std::string tenthsText(double radians) {
  std::string text;
  astro::appendFixed(text, astro::degreesOf(radians), 1);
  return text == "-0.0" || text == "360.0" ? "0.0" : text;
}

}  // namespace veyruna::almanac
