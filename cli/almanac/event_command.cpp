#include "cli/almanac/event_command.h"

#include <cmath>
#include <cstdio>

#include "almanac/events.h"
#include "cli/almanac/asked_events.h"
#include "cli/almanac/event_table.h"
#include "cli/almanac/range.h"
#include "cli/typed/arguments.h"
#include "cli/written/asked_forms.h"
#include "cli/written/document_writer.h"
#include "cli/written/progress.h"

namespace veyruna::cli {

void writeEvents(const Typed& typed) {
  askedWidth(typed, {});
  if (!typed.formats.empty() && typed.formats != "txt") {
    refuse("--format", typed.formats, "txt");
  }
  const std::vector<Place> places = placesOf(typed);
  const almanac::EventQuery query = askedEvents(typed, places);
  const auto daysUntil = [&query](double t) {
    return static_cast<std::int64_t>(std::floor(t - query.range.from));
  };
  const EventTable table(query.range, places);
  DocumentWriter writer = DocumentWriter::to(typed.file);
  writer.write(table.header());
  Progress progress(daysUntil(query.range.to) + 1, "days", isStandardOutput(typed.file));
  almanac::forEachEvent(query, [&](const almanac::Event& event) {
    writer.write(table.lines(event));
    progress.reach(daysUntil(std::max(event.baseTime, query.range.from)));
  });
  writer.finish();
}

}  // namespace veyruna::cli
