#include "cli/almanac/span_table.h"

#include <algorithm>
#include <cmath>

#include "astro/calendar.h"
#include "astro/local_time.h"
#include "astro/number_text.h"

namespace veyruna::cli {

namespace {

constexpr std::string_view columnGap = "  ";
constexpr std::size_t clockWidth = 5;
constexpr std::size_t lengthWidth = 10;

std::string onTheLeft(std::string text, std::size_t width) {
  text.resize(std::max(width, text.size()), ' ');
  return text.append(columnGap);
}

std::string onTheRight(const std::string& text, std::size_t width) {
  return std::string(width - std::min(width, text.size()), ' ') + text + std::string(columnGap);
}

/// To a second: the table's edges are no better than a tenth of one.
std::string baseTimeText(double t) {
  std::string text;
  astro::appendFixed(text, t, 5);
  return text;
}

/// "3:05": so many sixties, and the rest.
std::string sixtiesText(std::int64_t count) {
  constexpr std::int64_t sixty = 60;
  std::string text;
  astro::appendInteger(text, count / sixty);
  text += ':';
  astro::appendPaddedInteger(text, count % sixty, 2);
  return text;
}

}  // namespace

std::string lengthText(double days) {
  constexpr std::int64_t minute = 60;
  constexpr std::int64_t hour = 3600;
  constexpr std::int64_t day = 86400;
  const double exact = days * static_cast<double>(day);
  if (exact < static_cast<double>(minute) - 0.05) {
    std::string text;
    astro::appendFixed(text, exact, 1);
    return text + " s";
  }
  const auto seconds = static_cast<std::int64_t>(std::round(exact));
  if (seconds < hour) {
    return sixtiesText(seconds) + " min";
  }
  const std::int64_t minutes = (seconds + minute / 2) / minute;
  if (minutes < day / minute) {
    return sixtiesText(minutes) + " h";
  }
  std::string text;
  astro::appendInteger(text, minutes / (day / minute));
  text += " d ";
  const std::int64_t rest = minutes % (day / minute);
  astro::appendPaddedInteger(text, rest / minute, 2);
  text += ':';
  astro::appendPaddedInteger(text, rest % minute, 2);
  return text;
}

SpanTable::SpanTable(const almanac::Range& range, const std::optional<Place>& place)
    : place_(place),
      momentWidth_(
          std::max(astro::calendarLabel(range.from).size(), astro::calendarLabel(range.to).size())),
      baseTimeWidth_(std::max(baseTimeText(range.from).size(), baseTimeText(range.to).size())) {
  baseTimeWidth_ = std::max(baseTimeWidth_, std::string_view("Base time").size());
}

std::string SpanTable::header() const {
  std::string line;
  for (const char* const edge : {"Begin", "End"}) {
    line += onTheLeft(edge, momentWidth_) + (place_ ? onTheLeft("Local", clockWidth) : "") +
            onTheRight("Base time", baseTimeWidth_);
  }
  return line + onTheRight("Length", lengthWidth) + "Horoscope of the middle\n";
}

std::string SpanTable::line(const almanac::Span& span, const std::string& command) const {
  return momentColumns(span.begin) + momentColumns(span.end) +
         onTheRight(lengthText(span.end - span.begin), lengthWidth) + command + "\n";
}

std::string SpanTable::momentColumns(double t) const {
  std::string columns = onTheLeft(astro::calendarLabel(t), momentWidth_);
  if (place_) {
    columns +=
        onTheLeft(astro::localClockLabel({t, place_->latitude, place_->longitude}), clockWidth);
  }
  return columns + onTheRight(baseTimeText(t), baseTimeWidth_);
}

}  // namespace veyruna::cli
