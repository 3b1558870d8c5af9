#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace veyruna::words {

/// `text` in double quotes on one line, in UTF-8 whatever it holds: control characters and bytes
/// that are no UTF-8 as \xNN, a quote or backslash behind a backslash, a long text cut between two
/// characters.
std::string inQuotes(std::string_view text);

/// A saved name among others: as it is, or in quotes where control characters or bytes that are no
/// UTF-8 would break the line.
std::string asListed(std::string_view name);

/// A text as one word of a shell's command line: as it is, or in single quotes where a shell would
/// take it for something else. Nothing where it has no such word on one line: where control
/// characters or bytes that are no UTF-8 would break it.
std::optional<std::string> asShellWord(std::string_view text);

/// How many characters a text has; nothing where one of them would break a line.
std::optional<std::size_t> charactersOnALine(std::string_view text);

}  // namespace veyruna::words
