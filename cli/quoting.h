#pragma once

#include <string>
#include <string_view>

namespace veyruna::cli {

/// `text` in double quotes on one line: control characters as \xNN, a long text cut.
std::string inQuotes(std::string_view text);

}  // namespace veyruna::cli
