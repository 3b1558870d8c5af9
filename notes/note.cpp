#include "notes/note.h"

#include <algorithm>
#include <array>

#include "almanac/events/event_words.h"
#include "almanac/events/events.h"
#include "astro/invariant.h"
#include "astro/local_time.h"
#include "notes/note_id.h"
#include "notes/note_text.h"

namespace veyruna::notes {

namespace {

using almanac::Event;
using almanac::EventKind;
using records::Lookout;

/// What is said of all notes of a kind.
struct KindFacts {
  EventKind kind;
  std::string_view category;
  std::string_view color;
};

constexpr std::array<KindFacts, almanac::eventKindCount> kindFacts = {{
    {EventKind::eclipse, "Eclipses", "#7A1F1F"},
    {EventKind::moon, "Moons", "#9AA7B8"},
    {EventKind::conjunction, "Meetings", "#3B6FB6"},
    {EventKind::opposition, "Oppositions", "#B6703B"},
    {EventKind::sign, "Signs", "#6A4FA3"},
    {EventKind::station, "Turns", "#4F8A5B"},
    {EventKind::season, "Seasons", "#C9A227"},
    {EventKind::rise, "Risings", "#D98E73"},
    {EventKind::set, "Settings", "#7B5E8C"},
    {EventKind::culmination, "Culminations", "#5F9EA0"},
}};

constexpr bool everyKindHasItsFacts() {
  for (std::size_t i = 0; i < kindFacts.size(); ++i) {
    if (kindFacts[i].kind != static_cast<EventKind>(i)) {
      return false;
    }
  }
  return true;
}
static_assert(everyKindHasItsFacts(), "a kind of event has no category");

const KindFacts& factsOf(EventKind kind) {
  const auto row = static_cast<std::size_t>(kind);
  astro::requireInvariant(row < kindFacts.size(), "a kind of event has its category");
  return kindFacts[row];
}

/// The beginning of what happens, up to where details follow.
std::string nameOf(const Event& event, const std::vector<Lookout>& lookouts) {
  std::string name = almanac::wordsOf(event);
  const bool isPair = event.other != almanac::Body::count;
  name.erase(std::min(name.size(), name.find(isPair ? ',' : ':')));
  name.front() = name.front() >= 'a' && name.front() <= 'z'
                     ? static_cast<char>(name.front() - 'a' + 'A')
                     : name.front();
  if (almanac::entryOf(event.kind).needsPlace && !lookouts.empty()) {
    name += " over " + oneLine(lookouts.front().name);
  }
  return name;
}

/// " From Ebb at 18:15 local time: 12.5° high, 270.1° from the south through the west, seen."
std::string sightWords(const Event& event, const Lookout& lookout, const almanac::Sight& sight) {
  const astro::Observer observer = lookout.place.at(event.baseTime);
  return " From " + oneLine(lookout.name) + " at " + astro::localClockLabel(observer) +
         " local time: " + almanac::tenthsText(sight.altitude) + "° high, " +
         almanac::tenthsText(sight.azimuth) + "° from the south through the west, " +
         (sight.isSeen ? "seen." : "not seen.");
}

}  // namespace

std::optional<Note> noteOf(const Event& event, const std::vector<Lookout>& lookouts) {
  const std::optional<astro::CalendarMoment> moment = astro::calendarMoment(event.baseTime);
  if (!moment) {
    return std::nullopt;
  }
  const bool belongsToAPlace = almanac::entryOf(event.kind).needsPlace;
  astro::requireInvariant(!belongsToAPlace || !lookouts.empty(),
                          "what belongs to a place is told of one");
  const auto place = belongsToAPlace ? std::optional(lookouts.front()) : std::nullopt;
  Note note{
      .id = idOf(event, *moment, place),
      .name = nameOf(event, lookouts),
      .category = std::string(factsOf(event.kind).category),
      .color = std::string(factsOf(event.kind).color),
      .description = astro::calendarLabel(event.baseTime) + ": " + almanac::wordsOf(event) + ".",
      .moment = *moment};
  for (const Lookout& lookout : lookouts) {
    const almanac::Sight sight = almanac::sightOf(event, lookout.place);
    note.isSeen = note.isSeen || sight.isSeen;
    note.description += sightWords(event, lookout, sight);
    if (belongsToAPlace) {
      break;
    }
  }
  return note;
}

}  // namespace veyruna::notes
