#pragma once

#include <optional>
#include <string>

#include "almanac/search/search.h"
#include "records/event_record.h"
#include "records/record.h"

namespace veyruna::records {

/// When conditions hold.
const RecordType& searchType();

/// A row of searchType. Without a lookout no local clock is told. `command` draws the horoscope of
/// the span's middle.
Row searchRow(const almanac::Span& span, const std::optional<Lookout>& lookout,
              const std::string& command);

}  // namespace veyruna::records
