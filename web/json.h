#pragma once

#include <string>
#include <string_view>

#include "records/record.h"

namespace veyruna::web {

/// A JSON object, written member by member.
class JsonObject {
 public:
  /// A value; null where there is none.
  JsonObject& add(std::string_view name, const records::Value& value);
  /// What is JSON already.
  JsonObject& addJson(std::string_view name, std::string_view json);

  [[nodiscard]] std::string text() const { return "{" + members_ + "}"; }

 private:
  std::string members_;
};

/// A JSON list, written one by one.
class JsonList {
 public:
  JsonList& addJson(std::string_view json);

  [[nodiscard]] std::string text() const { return "[" + elements_ + "]"; }

 private:
  std::string elements_;
};

}  // namespace veyruna::web
