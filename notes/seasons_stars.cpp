#include "notes/seasons_stars.h"

#include <array>
#include <nlohmann/json.hpp>
#include <numeric>
#include <utility>

#include "astro/number_text.h"
#include "notes/calendar_definition.h"
#include "notes/note_text.h"

namespace veyruna::notes {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::size_t longestName = 200;
constexpr std::size_t longestDescription = 1000;

/// A stretch of the moon's cycle.
struct MoonPhase {
  std::string_view name;
  int days;
};

/// From new moon, so that the full moon stands in the middle.
constexpr std::array<MoonPhase, 8> moonPhases = {{{"New moon", 1},
                                                  {"Waxing crescent", 6},
                                                  {"First quarter", 1},
                                                  {"Waxing gibbous", 7},
                                                  {"Full moon", 1},
                                                  {"Waning gibbous", 6},
                                                  {"Last quarter", 1},
                                                  {"Waning crescent", 7}}};
static_assert(std::accumulate(moonPhases.begin(), moonPhases.end(), 0,
                              [](int sum, const MoonPhase& phase) { return sum + phase.days; }) ==
              moonCycleDays);

Json moonJson(std::int64_t year) {
  Json phases = Json::array();
  for (const auto& [name, days] : moonPhases) {
    phases.push_back({{"name", name}, {"length", days}, {"singleDay", days == 1}});
  }
  const astro::CalendarMoment newMoon = firstNewMoonOf(year);
  return {
      {"name", "Ivro"},
      {"cycleLength", moonCycleDays},
      {"firstNewMoon", {{"year", newMoon.year}, {"month", newMoon.month}, {"day", newMoon.day}}},
      {"phases", phases},
      {"color", "#F4F1E6"}};
}

Json calendarJson(std::int64_t year) {
  Json months = Json::array();
  for (const std::string_view name : astro::monthNames) {
    months.push_back({{"name", name}, {"days", astro::daysPerMonth}});
  }
  return {{"id", "veyruna"},
          {"translations", {{"en", {{"label", calendarName}}}}},
          {"year",
           {{"epoch", 1}, {"currentYear", year}, {"prefix", ""}, {"suffix", ""}, {"startDay", 0}}},
          {"months", months},
          {"weekdays", Json::array({{{"name", onlyWeekday}}})},
          {"moons", Json::array({moonJson(year)})}};
}

/// "18:05:00".
std::string clockText(const astro::CalendarMoment& moment) {
  std::string text;
  astro::appendPaddedInteger(text, moment.hour, 2);
  text += ':';
  astro::appendPaddedInteger(text, moment.minute, 2);
  text += ':';
  astro::appendPaddedInteger(text, moment.second, 2);
  return text;
}

Json eventJson(const Note& note, Visibility visibility) {
  return {
      {"id", note.id},
      {"name", shortened(note.name, longestName)},
      {"description", shortened(note.description, longestDescription)},
      {"recurrence", {{"type", "fixed"}, {"month", note.moment.month}, {"day", note.moment.day}}},
      {"startYear", note.moment.year},
      {"endYear", note.moment.year},
      {"startTime", clockText(note.moment)},
      {"duration", "0s"},
      {"visibility", visibility == Visibility::players ? "player-visible" : "gm-only"},
      {"color", note.color}};
}

}  // namespace

std::string seasonsStarsCalendar(std::int64_t year) {
  return calendarJson(year).dump(2) + "\n";
}

SeasonsStarsWriter::SeasonsStarsWriter(std::int64_t year, Visibility visibility,
                                       reports::TextSink sink)
    : visibility_(visibility), sink_(std::move(sink)) {
  std::string head = calendarJson(year).dump();
  head.pop_back();  // its closing brace comes at the end
  sink_(head + ",\n\"events\":[");
}

void SeasonsStarsWriter::write(const Note& note) {
  sink_((isFirst_ ? "\n" : ",\n") + eventJson(note, visibility_).dump());
  isFirst_ = false;
}

void SeasonsStarsWriter::finish() {
  sink_(isFirst_ ? "]}\n" : "\n]}\n");
}

}  // namespace veyruna::notes
