#pragma once

#include <string>

#include "cli/typed/guide.h"

namespace veyruna::cli {

/// The options as rows of the manual's table: the option, whose it is, what it does.
std::string optionTable(const Guide& guide);

}  // namespace veyruna::cli
