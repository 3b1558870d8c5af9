#pragma once

#include <string>

#include "cli/typed/guide.h"

namespace veyruna::cli {

/// The manual page veyruna(1), for `man`.
std::string manPage(const Guide& guide, const std::string& version);

}  // namespace veyruna::cli
