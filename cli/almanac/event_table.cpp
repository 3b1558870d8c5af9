#include "cli/almanac/event_table.h"

#include <QString>
#include <algorithm>

#include "almanac/events/event_words.h"
#include "almanac/events/events.h"
#include "astro/calendar.h"
#include "astro/local_time.h"
#include "words/quoting.h"

namespace veyruna::cli {

namespace {

constexpr std::string_view gap = "  ";

/// Padded on the right to a number of characters, then a gap.
std::string column(std::string_view text, std::size_t width) {
  const QString padded = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))
                             .leftJustified(static_cast<qsizetype>(width));
  return padded.toStdString().append(gap);
}

std::size_t charactersOf(const std::string& text) {
  return static_cast<std::size_t>(QString::fromStdString(text).size());
}

/// Degrees to a tenth, on the right of the column.
std::string angleColumn(double radians, std::size_t width) {
  const std::string text = almanac::tenthsText(radians);
  const std::size_t characters = text.size() + 1;
  return std::string(width - std::min(width, characters), ' ') + text + "°" + std::string(gap);
}

std::size_t widestKind() {
  std::size_t width = 0;
  for (const almanac::EventKindEntry& entry : almanac::allEventKinds) {
    width = std::max(width, entry.word.size());
  }
  return width;
}

}  // namespace

EventTable::EventTable(const almanac::Range& range, const std::vector<Place>& places)
    : places_(places),
      momentWidth_(std::max(astro::calendarLabel(range.from).size(),
                            astro::calendarLabel(range.to).size())) {
  if (places.size() > 1) {
    for (const Place& place : places) {
      placeWidth_ = std::max(placeWidth_, charactersOf(words::asListed(place.words)));
    }
  }
}

std::string EventTable::header() const {
  std::string line = column("Moment", momentWidth_);
  if (!places_.empty()) {
    line += column("Local", 5) + column("Altitude", 8) + column("Azimuth", 7) + column("Seen", 4);
  }
  if (placeWidth_ > 0) {
    line += column("From", placeWidth_);
  }
  return line + column("Kind", widestKind()) + "What\n";
}

std::string EventTable::lines(const almanac::Event& event) const {
  const almanac::EventKindEntry& kind = almanac::entryOf(event.kind);
  const std::string moment = column(astro::calendarLabel(event.baseTime), momentWidth_);
  const std::string what = column(kind.word, widestKind()) + almanac::wordsOf(event) + "\n";
  if (places_.empty()) {
    return moment + what;
  }
  if (kind.needsPlace) {
    return moment + seenFrom(event, places_[event.place]) + what;
  }
  std::string lines;
  for (const Place& place : places_) {
    lines += moment + seenFrom(event, place) + what;
  }
  return lines;
}

std::string EventTable::seenFrom(const almanac::Event& event, const Place& place) const {
  const astro::Observer observer{event.baseTime, place.latitude, place.longitude};
  const almanac::Sight sight = almanac::sightOf(event, observer);
  const std::string seen = column(astro::localClockLabel(observer), 5) +
                           angleColumn(sight.altitude, 8) + angleColumn(sight.azimuth, 7) +
                           column(sight.isSeen ? "yes" : "no", 4);
  return placeWidth_ > 0 ? seen + column(words::asListed(place.words), placeWidth_) : seen;
}

}  // namespace veyruna::cli
