#pragma once

#include <string>
#include <vector>

#include "records/record.h"

/// Values as JSON, on one line.
namespace veyruna::records {

/// Nothing is null, a text stands in its quotes; what in it is no UTF-8 becomes U+FFFD.
std::string jsonTextOf(const Value& value);

/// The members of a row, `"name":value` with a comma between two; those without a value are left
/// out. Appended to `out`, behind a comma where something stands there already.
void appendMembers(std::string& out, const std::vector<Field>& fields, const Row& row);

/// `{"name":"events","version":1}`.
std::string schemaMemberOf(const RecordType& type);

}  // namespace veyruna::records
