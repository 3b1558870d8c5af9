#include "notes/calendarium.h"

#include <nlohmann/json.hpp>

#include "notes/calendar_definition.h"
#include "notes/note_text.h"

namespace veyruna::notes {

namespace {

std::string headLine(std::string_view key, std::string_view text) {
  return std::string(key) + ": " + yamlText(text) + "\n";
}

}  // namespace

std::string calendariumNote(const Note& note) {
  const std::string date = dateText(note.moment);
  return "---\n" + headLine("fc-calendar", calendarName) + headLine("fc-date", date) +
         headLine("fc-end", date) + headLine("fc-category", note.category) +
         headLine("fc-display-name", note.name) + headLine("fc-description", note.description) +
         headLine("veyruna-id", note.id) + "---\n\n" + note.description + "\n";
}

std::string calendariumCalendar(std::int64_t year) {
  using Json = nlohmann::ordered_json;
  Json months = Json::array();
  for (const std::string_view name : astro::monthNames) {
    months.push_back({{"name", name},
                      {"id", "veyruna-month-" + std::to_string(months.size() + 1)},
                      {"type", "month"},
                      {"interval", 1},
                      {"offset", 0},
                      {"length", astro::daysPerMonth}});
  }
  const Json weekdays = {{{"name", onlyWeekday}, {"id", "veyruna-day"}, {"type", "day"}}};
  // The plugin counts the cycle from the first day of the calendar, a new moon without an offset.
  const std::int64_t offset = firstNewMoonOf(1).day - 1;
  const Json moons = {{{"name", "Ivro"},
                       {"id", "veyruna-ivro"},
                       {"cycle", moonCycleDays},
                       {"offset", offset},
                       {"faceColor", "#f4f1e6"},
                       {"shadowColor", "#2b2b33"}}};
  const Json calendar = {
      {"name", calendarName},
      {"id", "veyruna"},
      {"description", "Twelve months of thirty days, without leap days or weeks"},
      {"static",
       {{"firstWeekDay", 0},
        {"overflow", false},
        {"offset", 0},
        {"incrementDay", false},
        {"displayMoons", true},
        {"displayDayNumber", false},
        {"useCustomYears", false},
        {"weekdays", weekdays},
        {"months", months},
        {"moons", moons},
        {"leapDays", Json::array()},
        {"eras", Json::array()}}},
      {"current", {{"year", year}, {"month", 0}, {"day", 1}}},
      {"events", Json::array()},
      {"categories", Json::array()}};
  return calendar.dump(2) + "\n";
}

}  // namespace veyruna::notes
