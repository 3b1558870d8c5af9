#pragma once

#include "cli/typed/grammar.h"

namespace veyruna::cli {

/// Writes the page for browsers, made for what was typed. Throws UsageError.
void writePage(const Typed& typed);

}  // namespace veyruna::cli
