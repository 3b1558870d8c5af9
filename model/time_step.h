#pragma once

#include <QStringView>
#include <array>
#include <cstddef>
#include <optional>

/// The steps that time is moved by.
namespace veyruna::model {

enum class TimeStep {
  quarter,
  hour,
  day,
  sameStars,  ///< a turn of the stars, a little less than a day
  month,
  year,
  count  ///< none: how many there are
};

inline constexpr auto timeStepCount = static_cast<std::size_t>(TimeStep::count);

/// What is said of a step.
struct TimeStepEntry {
  TimeStep step = TimeStep::count;
  QStringView word;   ///< as it is stored
  QStringView title;  ///< as a person reads it
  double days = 0.0;
  /// Whether playing flows through the moments between two steps. It leaps from one to the next
  /// where what lies between would whirl the sky about.
  bool flows = false;
};

/// Every step, in their order.
extern const std::array<TimeStepEntry, timeStepCount> allTimeSteps;

/// How many of them are played in a second.
inline constexpr std::array timeSpeeds = {0.5, 1.0, 2.0, 4.0, 8.0, 16.0, 32.0};

/// `TimeStep::count` is a broken invariant.
const TimeStepEntry& entryOf(TimeStep step);

/// The step that is stored as this word; nothing for any other.
std::optional<TimeStep> timeStepOf(QStringView word);

}  // namespace veyruna::model
