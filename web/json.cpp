#include "web/json.h"

#include "records/json_text.h"

namespace veyruna::web {

JsonObject& JsonObject::add(std::string_view name, const records::Value& value) {
  return addJson(name, records::jsonTextOf(value));
}

JsonObject& JsonObject::addJson(std::string_view name, std::string_view json) {
  members_.append(members_.empty() ? "\"" : ",\"").append(name).append("\":").append(json);
  return *this;
}

JsonList& JsonList::addJson(std::string_view json) {
  elements_.append(elements_.empty() ? "" : ",").append(json);
  return *this;
}

}  // namespace veyruna::web
