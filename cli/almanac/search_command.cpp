#include "cli/almanac/search_command.h"

#include <cmath>
#include <cstdio>
#include <limits>
#include <optional>

#include "almanac/search/search.h"
#include "cli/almanac/asked_conditions.h"
#include "cli/almanac/span_output.h"
#include "cli/typed/range.h"
#include "cli/written/asked_forms.h"
#include "cli/written/document_writer.h"
#include "cli/written/progress.h"
#include "words/quoting.h"
#include "words/usage_error.h"
#include "words/values.h"

namespace veyruna::cli {

namespace {

using almanac::Condition;

/// The one place that was typed; a place that nobody typed is none.
std::optional<Place> askedPlace(const Typed& typed) {
  if (typed.location == everyPlace) {
    throw words::UsageError("--location: a search is from one place, not from \"all\"");
  }
  return typed.hasPlace ? std::optional(placesOf(typed).front()) : std::nullopt;
}

void requirePlace(const std::vector<Condition>& conditions, bool isLocal) {
  for (const Condition& condition : conditions) {
    if (almanac::needsPlace(condition, isLocal)) {
      throw words::UsageError(
          "condition " + words::inQuotes(textOf(condition)) +
          " is different from place to place; give one with --location, or with "
          "--lat and --long");
    }
  }
}

std::int64_t askedCount(const Typed& typed) {
  constexpr std::int64_t most = 1'000'000'000;
  return typed.first.empty() ? std::numeric_limits<std::int64_t>::max()
                             : words::readWholeNumber("--first", typed.first, 1, most);
}

}  // namespace

void writeSearch(const Typed& typed) {
  const std::vector<documents::Form> forms = askedForms(typed, documents::Kind::log);
  askedWidth(typed, forms);
  const std::int64_t most = askedCount(typed);
  std::vector<Condition> conditions = askedConditions(typed);
  const std::optional<Place> place = askedPlace(typed);
  if (!place) {
    requirePlace(conditions, typed.isLocal);
  }
  const almanac::Query query{
      .condition = almanac::allOf(std::move(conditions)),
      .range = rangeOf(typed, place ? std::vector{*place} : std::vector<Place>()),
      .place = place ? std::optional(astro::Observer{0.0, place->latitude, place->longitude})
                     : std::nullopt,
      .isLocal = typed.isLocal};
  const std::string explanation =
      typed.isExplained ? explanationOf(query.condition, query.isLocal) + "\n" : "";
  if (documents::formEntry(forms.front()).isOfValues) {
    std::fputs(explanation.c_str(), stderr);
  }
  const std::unique_ptr<SpanOutput> output =
      spanOutput(typed, forms.front(), query, place, explanation);
  const auto daysUntil = [&query](double t) {
    return static_cast<std::int64_t>(std::floor(t - query.range.from));
  };
  Progress progress(daysUntil(query.range.to) + 1, "days", isStandardOutput(typed.file));
  std::int64_t reachedDay = 0;
  std::int64_t found = 0;
  almanac::search(
      query,
      [&](const almanac::Span& span) {
        output->take(span);
        return ++found < most;
      },
      [&](double t) {
        if (daysUntil(t) != reachedDay) {
          reachedDay = daysUntil(t);
          progress.reach(reachedDay);
        }
      });
  output->finish();
  if (found == 0) {
    std::fputs("veyruna: in this stretch of time that never holds\n", stderr);
  }
}

}  // namespace veyruna::cli
