// What happens.
#include <array>

#include "almanac/events/events.h"
#include "web/answers.h"
#include "web/stretch.h"
#include "words/event_kinds.h"
#include "words/listing.h"

namespace veyruna::web {

namespace {

constexpr std::array<std::string_view, 8> eventNames = {"from", "to",   "for",        "kinds",
                                                        "lat",  "long", "place_name", "local"};

}  // namespace

std::string eventsAnswer(const Question& question) {
  question.acceptOnly(eventNames);
  const std::optional<records::Lookout> lookout = askedLookout(question);
  almanac::EventQuery query{.range = askedRange(question, lookout)};
  if (lookout) {
    query.places.push_back(lookout->place);
  }
  words::readEventKinds("kinds", words::joined(question.all("kinds"), ","), placeIsGivenBy, query);
  Rows rows(records::eventsType());
  almanac::forEachEventUntil(query, [&](const almanac::Event& event) {
    return rows.write(records::eventRow(event, lookout));
  });
  return rows.finish();
}

}  // namespace veyruna::web
