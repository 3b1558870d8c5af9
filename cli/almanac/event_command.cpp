#include "cli/almanac/event_command.h"

#include <cmath>
#include <cstdio>

#include "almanac/events.h"
#include "cli/almanac/asked_events.h"
#include "cli/almanac/event_output.h"
#include "cli/almanac/range.h"
#include "cli/written/asked_forms.h"
#include "cli/written/document_writer.h"
#include "cli/written/progress.h"

namespace veyruna::cli {

void writeEvents(const Typed& typed) {
  const std::vector<documents::Form> forms = askedForms(typed, documents::Kind::log);
  askedWidth(typed, forms);
  const std::vector<Place> places = placesOf(typed);
  const almanac::EventQuery query = askedEvents(typed, places);
  const auto daysUntil = [&query](double t) {
    return static_cast<std::int64_t>(std::floor(t - query.range.from));
  };
  const std::unique_ptr<EventOutput> output =
      eventOutput(typed.file, forms.front(), query.range, places);
  Progress progress(daysUntil(query.range.to) + 1, "days", isStandardOutput(typed.file));
  almanac::forEachEvent(query, [&](const almanac::Event& event) {
    output->take(event);
    progress.reach(daysUntil(std::max(event.baseTime, query.range.from)));
  });
  output->finish();
}

}  // namespace veyruna::cli
