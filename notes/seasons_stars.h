#pragma once

#include <cstdint>
#include <string>

#include "notes/note.h"
#include "reports/text_sink.h"

/// Foundry's module Seasons & Stars: one JSON file of a calendar with its events.
namespace veyruna::notes {

/// The calendar by itself; its present year.
std::string seasonsStarsCalendar(std::int64_t year);

/// Who sees an event in the tool.
enum class Visibility { gameMaster, players };

/// Writes the calendar with events, one at a time: memory does not grow with their number. Each
/// happens once, in its own year.
class SeasonsStarsWriter {
 public:
  /// Writes what comes before the events.
  SeasonsStarsWriter(std::int64_t year, Visibility visibility, reports::TextSink sink);

  void write(const Note& note);

  /// Without it the file is not whole.
  void finish();

 private:
  Visibility visibility_;
  reports::TextSink sink_;
  bool isFirst_ = true;
};

}  // namespace veyruna::notes
