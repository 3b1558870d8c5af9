#include "cli/almanac/event_command.h"

#include <cmath>
#include <optional>
#include <utility>

#include "almanac/events/events.h"
#include "cli/almanac/asked_events.h"
#include "cli/almanac/event_output.h"
#include "cli/almanac/note_output.h"
#include "cli/typed/range.h"
#include "cli/written/asked_forms.h"
#include "cli/written/document_writer.h"
#include "cli/written/progress.h"
#include "notes/note_tools.h"
#include "words/quoting.h"
#include "words/usage_error.h"
#include "words/values.h"

namespace veyruna::cli {

namespace {

/// The form of the one file that is written. Throws UsageError.
documents::Form formOfEvents(const Typed& typed) {
  const documents::Kind kind = documents::Kind::log;
  const auto form = documents::formOf(typed.formats);
  if (!typed.formats.empty() && !(form && documents::canBe(kind, *form))) {
    words::refuse("--format", typed.formats,
                  "one of txt, json, jsonl, csv, " + notes::noteToolWords() + " for events");
  }
  if (!typed.folder.empty()) {
    throw words::UsageError("--out " + words::inQuotes(typed.folder) +
                            " belongs to --format calendarium");
  }
  if (!typed.visibility.empty()) {
    throw words::UsageError("--visibility " + words::inQuotes(typed.visibility) +
                            " belongs to --format " + notes::noteToolWords(" and "));
  }
  const std::vector<documents::Form> forms = askedForms(typed, kind);
  askedWidth(typed, forms);
  return forms.front();
}

}  // namespace

void writeEvents(const Typed& typed) {
  const std::optional<notes::NoteTool> tool = notes::noteToolOf(typed.formats);
  const documents::Form form = tool ? documents::Form::count : formOfEvents(typed);
  if (tool) {
    askedWidth(typed, {});
  }
  const std::vector<Place> places = placesOf(typed);
  const almanac::EventQuery query = askedEvents(typed, places);
  const auto daysUntil = [&query](double t) {
    return static_cast<std::int64_t>(std::floor(t - query.range.from));
  };
  const std::unique_ptr<EventOutput> output =
      tool ? noteOutput(*tool, typed, query.range, places)
           : eventOutput(typed.file, form, query.range, places);
  Progress progress(daysUntil(query.range.to) + 1, "days", isStandardOutput(typed.file));
  almanac::forEachEvent(query, [&](const almanac::Event& event) {
    output->take(event);
    progress.reach(daysUntil(std::max(event.baseTime, query.range.from)));
  });
  output->finish();
}

}  // namespace veyruna::cli
