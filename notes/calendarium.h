#pragma once

#include <cstdint>
#include <string>

#include "notes/note.h"

/// Obsidian's plugin Calendarium: a note of Markdown an event.
namespace veyruna::notes {

/// A whole note, whose head is YAML with every text in quotes. Both ends of its range are the day
/// of the moment; months count from 1.
std::string calendariumNote(const Note& note);

/// The calendar as JSON in the plugin's own layout, where months count from 0; today is the first
/// day of the year.
std::string calendariumCalendar(std::int64_t year);

}  // namespace veyruna::notes
