#include "cli/page/session.h"

#include <string_view>

#include "astro/angle.h"
#include "records/json_text.h"
#include "records/record.h"

namespace veyruna::cli {

namespace {

/// A tag in a text would end the script that it stands in.
std::string asInHtml(std::string_view json) {
  std::string text;
  for (const char letter : json) {
    text += letter == '<' ? std::string("\\u003c") : std::string(1, letter);
  }
  return text;
}

void add(std::string& members, std::string_view name, const records::Value& value) {
  members.append(members.empty() ? "\"" : ",\"").append(name).append("\":");
  members += records::jsonTextOf(value);
}

}  // namespace

std::string sessionJson(const Session& session) {
  std::string members;
  if (!session.title.empty()) {
    add(members, "title", session.title);
  }
  if (session.baseTime) {
    add(members, "base_time", *session.baseTime);
  }
  if (session.bounds) {
    add(members, "from_base_time", session.bounds->from);
    add(members, "to_base_time", session.bounds->to);
  }
  if (session.place) {
    add(members, "lat", astro::typedDegreesOf(session.place->latitude));
    add(members, "long", astro::typedDegreesOf(session.place->longitude));
    add(members, "place", session.place->words);
  }
  if (session.isForPlayers) {
    add(members, "player", true);
  }
  return asInHtml("{" + members + "}");
}

}  // namespace veyruna::cli
