#pragma once

#include <optional>
#include <string>
#include <vector>

#include "almanac/events/event.h"
#include "astro/calendar.h"
#include "records/event_record.h"

/// Events and the calendar as other people's tools keep them.
namespace veyruna::notes {

/// An event as a person reads it in a calendar.
struct Note {
  std::string id;                  ///< see idOf
  std::string name;                ///< "Bralo and Galvi meet"
  std::string category;            ///< "Meetings"
  std::string color;               ///< of its kind, "#RRGGBB"
  std::string description;         ///< on one line: the moment, what happens and how it is seen
  astro::CalendarMoment moment{};  ///< as the event's label has it: rounded to the second
  bool isSeen = false;             ///< from any of the places
};

/// The note of an event. A rise, set or culmination is told of its own place, the first of the
/// list; any other event of all of them. Nothing where the calendar has no such date.
std::optional<Note> noteOf(const almanac::Event& event,
                           const std::vector<records::Lookout>& lookouts);

}  // namespace veyruna::notes
