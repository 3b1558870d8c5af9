#include "records/record.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <string_view>

#include "astro/calendar.h"
#include "astro/invariant.h"

namespace veyruna::records {

namespace {

bool isOneOf(const std::vector<std::string>& words, const std::string& text) {
  return words.empty() || std::ranges::find(words, text) != words.end();
}

bool isValueOf(const Field& field, const Value& value) {
  if (std::holds_alternative<std::monostate>(value)) {
    return field.isOptional;
  }
  switch (field.type) {
    case ValueType::boolean:
      return std::holds_alternative<bool>(value);
    case ValueType::integer:
      return std::holds_alternative<std::int64_t>(value);
    case ValueType::number: {
      const double* const number = std::get_if<double>(&value);
      return number != nullptr && std::isfinite(*number);
    }
    case ValueType::numbers: {
      const auto* const numbers = std::get_if<std::vector<double>>(&value);
      return numbers != nullptr &&
             std::ranges::all_of(*numbers, [](double number) { return std::isfinite(number); });
    }
    case ValueType::text:
    case ValueType::date: {
      const auto* const text = std::get_if<std::string>(&value);
      return text != nullptr && isOneOf(field.words, *text);
    }
    case ValueType::texts: {
      const auto* const texts = std::get_if<std::vector<std::string>>(&value);
      return texts != nullptr && std::ranges::all_of(*texts, [&field](const std::string& text) {
               return isOneOf(field.words, text);
             });
    }
  }
  return false;
}

bool isSnakeCase(std::string_view name) {
  return !name.empty() && name.front() >= 'a' && name.front() <= 'z' &&
         name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789_") == std::string_view::npos;
}

}  // namespace

void requireRowOf(const std::vector<Field>& fields, const Row& row) {
  astro::requireInvariant(row.size() == fields.size(), "a row has a value for each field",
                          row.size(), fields.size());
  for (std::size_t i = 0; i < row.size(); ++i) {
    astro::requireInvariant(isValueOf(fields[i], row[i]), "a value is one of its field", i);
  }
}

void requireSoundType(const RecordType& type) {
  std::set<std::string_view> names = {"schema"};
  const auto isNew = [&names](std::string_view name) {
    return isSnakeCase(name) && names.insert(name).second;
  };
  astro::requireInvariant(
      isSnakeCase(type.name) && type.version > 0 && isNew(type.rowsMember) && !type.fields.empty(),
      "a type of records has its names");
  for (const std::vector<Field>* const fields : {&type.about, &type.fields}) {
    for (const Field& field : *fields) {
      astro::requireInvariant(isNew(field.name) && !field.description.empty(),
                              "a field has a name of its own, and is described");
    }
  }
}

Value dateOf(double baseTime) {
  if (!astro::calendarReading(baseTime)) {
    return {};
  }
  std::string text = astro::calendarLabel(baseTime);
  text.erase(text.rfind(' '));
  text[text.find(' ')] = 'T';
  return text;
}

}  // namespace veyruna::records
