#pragma once

#include <string>

#include "records/record.h"

namespace veyruna::records {

/// The JSON Schema (draft 2020-12) of a document in Notation::json, made of the same table as the
/// document; ends with a line feed.
std::string documentSchema(const RecordType& type);

/// That of one line in Notation::jsonl.
std::string lineSchema(const RecordType& type);

}  // namespace veyruna::records
