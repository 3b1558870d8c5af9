#include "records/json_text.h"

#include <nlohmann/json.hpp>

namespace veyruna::records {

namespace {

using Json = nlohmann::ordered_json;

std::string oneLine(const Json& json) {
  return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Json jsonOf(std::monostate /*nothing*/) {
  return nullptr;
}

template <class Held>
Json jsonOf(const Held& held) {
  return held;
}

}  // namespace

std::string jsonTextOf(const Value& value) {
  return oneLine(std::visit([](const auto& held) { return jsonOf(held); }, value));
}

void appendMembers(std::string& out, const std::vector<Field>& fields, const Row& row) {
  bool isBehind = !out.empty() && out.back() != '{';
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (std::holds_alternative<std::monostate>(row[i])) {
      continue;
    }
    out += isBehind ? ",\"" : "\"";
    out += fields[i].name;
    out += "\":";
    out += jsonTextOf(row[i]);
    isBehind = true;
  }
}

std::string schemaMemberOf(const RecordType& type) {
  return oneLine({{"name", type.name}, {"version", type.version}});
}

}  // namespace veyruna::records
