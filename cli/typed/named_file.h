#pragma once

#include <cstddef>
#include <string>

/// Files that a person names on the command line; "-" is standard input.
namespace veyruna::cli {

/// All that the file holds. Throws std::runtime_error that names it where it cannot be read, or
/// holds more than `mostBytes`.
std::string contentOfFile(const std::string& file, std::size_t mostBytes);

/// How the file is called in messages.
std::string nameOfFile(const std::string& file);

}  // namespace veyruna::cli
