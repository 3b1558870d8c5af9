#pragma once

#include <optional>
#include <string>

#include "almanac/event_source.h"
#include "astro/observer.h"
#include "records/record.h"

/// Events of the sky as rows.
namespace veyruna::records {

extern const RecordType eventRecords;

/// The values of what holds of all events of a range.
Row eventsAbout(const almanac::Range& range);

/// A place that events are told of; its moment does not matter.
struct NamedPlace {
  std::string name;
  astro::Observer observer;
};

/// An event by itself, or as it is seen from a place.
Row eventRow(const almanac::Event& event, const std::optional<NamedPlace>& place = {});

}  // namespace veyruna::records
