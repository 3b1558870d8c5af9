#pragma once

#include <string>

namespace veyruna::cli {

/// All that a file holds, or standard input for "-". Throws std::runtime_error that names it where
/// it cannot be read, or is larger than any table of rows (256 MiB).
std::string contentOfTable(const std::string& file);

/// How the table is called in messages.
std::string nameOfTable(const std::string& file);

}  // namespace veyruna::cli
