#pragma once

#include "records/record.h"

namespace veyruna::tests {

/// A type of records with a field of every type, one of each of them optional.
inline const records::RecordType& weatherType() {
  using records::ValueType;
  static const records::RecordType type = {
      .name = "weather",
      .version = 3,
      .description = "What the air does",
      .rowsMember = "days",
      .about = {{"place", ValueType::text, "Where"},
                {"height_metres", ValueType::number, "How high", true}},
      .fields = {{"is_wet", ValueType::boolean, "Whether it rains", true},
                 {"sheep_blown_away", ValueType::integer, "Sheep", true},
                 {"wind_knots", ValueType::number, "The wind"},
                 {"remark", ValueType::text, "What was said", true},
                 {"from", ValueType::text, "Where the wind comes from", true, {"sea", "land"}},
                 {"clouds", ValueType::texts, "Kinds of clouds", true},
                 {"gusts_knots", ValueType::numbers, "Gusts", true},
                 {"date", ValueType::date, "The day", true}}};
  return type;
}

}  // namespace veyruna::tests
