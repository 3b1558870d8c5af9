// What happens.
#include <array>

#include "almanac/events/events.h"
#include "web/answers.h"
#include "web/stretch.h"
#include "words/event_kinds.h"

namespace veyruna::web {

namespace {

constexpr std::array<std::string_view, 8> eventNames = {"from", "to",   "for",        "kinds",
                                                        "lat",  "long", "place_name", "local"};

std::string joinedKinds(const Question& question) {
  std::string list;
  for (const std::string& kind : question.all("kinds")) {
    list += (list.empty() ? "" : ",") + kind;
  }
  return list;
}

}  // namespace

std::string eventsAnswer(const Question& question) {
  question.acceptOnly(eventNames);
  const std::optional<records::Lookout> lookout = askedLookout(question);
  almanac::EventQuery query{.range = askedRange(question, lookout)};
  if (lookout) {
    query.places.push_back(lookout->place);
  }
  words::readEventKinds("kinds", joinedKinds(question), placeIsGivenBy, query);
  Rows rows(records::eventsType());
  almanac::forEachEventUntil(query, [&](const almanac::Event& event) {
    return rows.write(records::eventRow(event, lookout));
  });
  return rows.finish();
}

}  // namespace veyruna::web
