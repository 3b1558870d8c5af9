// When conditions hold.
#include <algorithm>
#include <array>
#include <iterator>

#include "almanac/search/condition_reader.h"
#include "almanac/search/search.h"
#include "records/search_record.h"
#include "web/answers.h"
#include "web/stretch.h"
#include "words/condition_refusal.h"
#include "words/horoscope_command.h"
#include "words/quoting.h"
#include "words/usage_error.h"
#include "words/values.h"

namespace veyruna::web {

namespace {

using almanac::Condition;

constexpr std::array<std::string_view, 9> searchNames = {
    "conditions", "from", "to", "for", "lat", "long", "place_name", "local", "first"};

std::vector<Condition> askedConditions(const Question& question) {
  std::vector<Condition> asked;
  for (const std::string& text : question.all("conditions")) {
    try {
      std::vector<Condition> conditions = almanac::readConditions(text);
      if (conditions.empty()) {
        throw words::UsageError("condition " + words::inQuotes(text) + " is empty");
      }
      std::ranges::move(std::move(conditions), std::back_inserter(asked));
    } catch (const almanac::ConditionError& error) {
      throw words::refusalOf("condition " + words::inQuotes(text), error);
    }
  }
  if (asked.empty()) {
    throw words::UsageError(
        "conditions is empty; give one or several such as \"moon full\" or \"dunmor conjunct "
        "galvi\"");
  }
  return asked;
}

std::int64_t askedCount(const Question& question) {
  const std::optional<std::string> first = question.text("first");
  return first ? words::readWholeNumber("first", *first, 1, Rows::most) : Rows::most + 1;
}

}  // namespace

std::string searchAnswer(const Question& question) {
  question.acceptOnly(searchNames);
  const std::int64_t most = askedCount(question);
  std::vector<Condition> conditions = askedConditions(question);
  const std::optional<records::Lookout> lookout = askedLookout(question);
  const bool isLocal = question.isSo("local");
  for (const Condition& condition : conditions) {
    if (!lookout && almanac::needsPlace(condition, isLocal)) {
      throw words::UsageError("condition " + words::inQuotes(almanac::textOf(condition)) +
                              " is different from place to place; " + std::string(placeIsGivenBy));
    }
  }
  const almanac::Range range = askedRange(question, lookout);
  const almanac::Query query{.condition = almanac::allOf(std::move(conditions)),
                             .range = range,
                             .place = lookout ? std::optional(lookout->place) : std::nullopt,
                             .isLocal = isLocal};
  Rows rows(records::searchType());
  const std::string options =
      lookout ? words::placeOptions(lookout->place.latitude, lookout->place.longitude) : "";
  std::int64_t found = 0;
  almanac::search(query, [&](const almanac::Span& span) {
    return rows.write(records::searchRow(span, lookout, words::horoscopeCommand(span, options))) &&
           ++found < most;
  });
  return rows.finish();
}

}  // namespace veyruna::web
