#pragma once

#include <memory>
#include <string>
#include <vector>

#include "almanac/events/event_source.h"
#include "cli/typed/places.h"
#include "documents/forms.h"

namespace veyruna::cli {

/// Where events go, one by one as they are found.
class EventOutput {
 public:
  EventOutput() = default;
  EventOutput(const EventOutput&) = delete;
  EventOutput& operator=(const EventOutput&) = delete;
  virtual ~EventOutput() = default;

  virtual void take(const almanac::Event& event) = 0;

  /// Without it nothing is whole.
  virtual void finish() = 0;
};

/// One file, in text or for programs, of the events of the range; each is told of every place, or
/// of the one that it belongs to. Keeps a reference to the places.
std::unique_ptr<EventOutput> eventOutput(const std::string& file, documents::Form form,
                                         const almanac::Range& range,
                                         const std::vector<Place>& places);

}  // namespace veyruna::cli
