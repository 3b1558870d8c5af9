// Answers to "when?".
#include <algorithm>
#include <array>
#include <iterator>
#include <limits>

#include "almanac/events/events.h"
#include "almanac/search/condition_reader.h"
#include "almanac/search/search.h"
#include "records/event_record.h"
#include "records/record_writer.h"
#include "records/search_record.h"
#include "web/answers.h"
#include "words/angles.h"
#include "words/condition_refusal.h"
#include "words/dates.h"
#include "words/event_kinds.h"
#include "words/horoscope_command.h"
#include "words/quoting.h"
#include "words/usage_error.h"
#include "words/values.h"

namespace veyruna::web {

namespace {

using almanac::Condition;
using almanac::Range;
using records::Lookout;

constexpr std::string_view placeIsGivenBy = "give one with lat and long";

constexpr std::array<std::string_view, 8> eventNames = {"from", "to",   "for",        "kinds",
                                                        "lat",  "long", "place_name", "local"};
constexpr std::array<std::string_view, 9> searchNames = {
    "conditions", "from", "to", "for", "lat", "long", "place_name", "local", "first"};

/// What an answer holds at most: a browser's memory is not a disk.
constexpr std::int64_t mostRows = 100'000;

/// The place that was asked for, if one was.
std::optional<Lookout> askedLookout(const Question& question) {
  if (!question.text("lat") && !question.text("long")) {
    return std::nullopt;
  }
  const astro::Observer place = question.place();
  return Lookout{
      question.text("place_name").value_or(words::coordinatesText(place.latitude, place.longitude)),
      place};
}

Range askedRange(const Question& question, const std::optional<Lookout>& lookout, bool isLocal) {
  if (isLocal && !lookout) {
    throw words::UsageError("local: local clocks are those of a place; " +
                            std::string(placeIsGivenBy));
  }
  const std::optional<double> longitude =
      isLocal ? std::optional(lookout->place.longitude) : std::nullopt;
  const double from = question.moment("from", longitude);
  const std::optional<std::string> length = question.text("for");
  const std::optional<std::string> end = question.text("to");
  if (length.has_value() == end.has_value()) {
    throw words::UsageError("give either to, a moment, or for, a length such as \"3 months\"");
  }
  const double to = end ? question.moment("to", longitude)
                        : words::checkedBaseTime(from + words::readLength("for", *length),
                                                 "for: " + words::inQuotes(*length));
  if (to < from) {
    throw words::UsageError("to: " + words::inQuotes(end.value_or("")) + " is before from " +
                            words::inQuotes(question.text("from").value_or("")));
  }
  return {from, to};
}

std::string joinedKinds(const Question& question) {
  std::string list;
  for (const std::string& kind : question.all("kinds")) {
    list += (list.empty() ? "" : ",") + kind;
  }
  return list;
}

/// Rows written one behind the other, up to the most that an answer holds.
class Rows {
 public:
  explicit Rows(const records::RecordType& type)
      : writer_(type, records::Notation::json,
                [this](std::string_view piece) { text_.append(piece); }) {}

  void write(const records::Row& row) {
    if (++count_ > mostRows) {
      throw words::UsageError("there are more than " + std::to_string(mostRows) +
                              "; ask for a shorter stretch of time, or for fewer kinds");
    }
    writer_.write(row);
  }

  std::string finish() {
    writer_.finish();
    return std::move(text_);
  }

 private:
  std::string text_;
  records::RecordWriter writer_;
  std::int64_t count_ = 0;
};

std::vector<Condition> askedConditions(const Question& question) {
  std::vector<Condition> asked;
  for (const std::string& text : question.all("conditions")) {
    try {
      std::ranges::move(almanac::readConditions(text), std::back_inserter(asked));
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
  return first ? words::readWholeNumber("first", *first, 1, mostRows)
               : std::numeric_limits<std::int64_t>::max();
}

}  // namespace

std::string eventsAnswer(const Question& question) {
  question.acceptOnly(eventNames);
  const std::optional<Lookout> lookout = askedLookout(question);
  almanac::EventQuery query{.range = askedRange(question, lookout, question.isSo("local"))};
  if (lookout) {
    query.places.push_back(lookout->place);
  }
  words::readEventKinds("kinds", joinedKinds(question), placeIsGivenBy, query);
  Rows rows(records::eventsType());
  almanac::forEachEvent(
      query, [&](const almanac::Event& event) { rows.write(records::eventRow(event, lookout)); });
  return rows.finish();
}

std::string searchAnswer(const Question& question) {
  question.acceptOnly(searchNames);
  const std::int64_t most = askedCount(question);
  std::vector<Condition> conditions = askedConditions(question);
  const std::optional<Lookout> lookout = askedLookout(question);
  const bool isLocal = question.isSo("local");
  for (const Condition& condition : conditions) {
    if (!lookout && almanac::needsPlace(condition, isLocal)) {
      throw words::UsageError("condition " + words::inQuotes(almanac::textOf(condition)) +
                              " is different from place to place; " + std::string(placeIsGivenBy));
    }
  }
  const Range range = askedRange(question, lookout, isLocal);
  const almanac::Query query{.condition = almanac::allOf(std::move(conditions)),
                             .range = range,
                             .place = lookout ? std::optional(lookout->place) : std::nullopt,
                             .isLocal = isLocal};
  Rows rows(records::searchType());
  const std::string options =
      lookout ? words::placeOptions(lookout->place.latitude, lookout->place.longitude) : "";
  std::int64_t found = 0;
  almanac::search(query, [&](const almanac::Span& span) {
    rows.write(records::searchRow(span, lookout, words::horoscopeCommand(span, options)));
    return ++found < most;
  });
  return rows.finish();
}

}  // namespace veyruna::web
