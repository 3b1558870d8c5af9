#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/typed/guide.h"

namespace veyruna::cli {

/// In single quotes, as bash and zsh read them.
std::string quotedForShell(std::string_view text);

/// The options of all commands and of each, none twice, in their order.
std::vector<OptionGuide> differentOptions(const Guide& guide);

/// The names of all options that take a value.
std::vector<std::string> namesWithValues(const Guide& guide);

/// Reads "name,…" lines of the saved places, below a line of headings, into names.
inline constexpr std::string_view placeNamesOfTable =
    R"sed(sed -E '1d; s/,[^,]*,[^,]*,[^,]*$//; s/^"(.*)"$/\1/; s/""/"/g')sed";

}  // namespace veyruna::cli
