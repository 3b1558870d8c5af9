#pragma once

#include <string>

namespace veyruna::tests {

/// Numbers of every kind as text and back, a line each, to compare two builds by: bits, the
/// shortest text and what it reads back as, and fixed texts of several lengths.
std::string numberLines();

}  // namespace veyruna::tests
