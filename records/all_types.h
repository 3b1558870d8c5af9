#pragma once

#include <array>
#include <string_view>

#include "records/record.h"

namespace veyruna::records {

/// The saved places. Coordinates are absent where a place is on no globe.
const RecordType& locationsType();

/// A type of records, by its name.
struct TypeEntry {
  std::string_view name;
  const RecordType& (*type)();
};

/// Every type, in the order of their names.
extern const std::array<TypeEntry, 8> allTypes;

}  // namespace veyruna::records
