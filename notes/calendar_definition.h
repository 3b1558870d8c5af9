#pragma once

#include <cstdint>
#include <string_view>

#include "astro/calendar.h"

/// What other tools are told of the calendar, beside the months that astro/calendar.h has.
namespace veyruna::notes {

inline constexpr std::string_view calendarName = "Veyruna";

/// The world has no weeks, and no tool does without: each day is a week of its own.
inline constexpr std::string_view onlyWeekday = "Day";

/// Days from new moon to new moon. The moon itself takes 0.000015 days less, so that a count of
/// whole days from a new moon nearby holds for thousands of years.
inline constexpr int moonCycleDays = 30;

/// The day of the first new moon of a year, from 1.
astro::CalendarMoment firstNewMoonOf(std::int64_t year);

}  // namespace veyruna::notes
