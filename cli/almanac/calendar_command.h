#pragma once

#include "cli/typed/grammar.h"

namespace veyruna::cli {

/// Writes the calendar as a tool takes it. Throws UsageError.
void writeCalendar(const Typed& typed);

}  // namespace veyruna::cli
