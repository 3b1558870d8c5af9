#pragma once

#include <memory>
#include <vector>

#include "almanac/events/event_source.h"
#include "cli/almanac/event_output.h"
#include "cli/typed/grammar.h"
#include "cli/typed/places.h"
#include "notes/note_tools.h"

namespace veyruna::cli {

/// Events as a tool keeps them: for Calendarium a note each, in the folder of --out, where a note
/// that is there already stays as it is; for Seasons & Stars one file. With --visibility player,
/// those alone that are seen from one of the places. Keeps references. Throws UsageError.
std::unique_ptr<EventOutput> noteOutput(notes::NoteTool tool, const Typed& typed,
                                        const almanac::Range& range,
                                        const std::vector<Place>& places);

}  // namespace veyruna::cli
