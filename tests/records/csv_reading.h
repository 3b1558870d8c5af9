#pragma once

#include <string>
#include <vector>

namespace veyruna::tests {

/// The lines of a CSV file with their fields, by a strict reader that is not the program's. What is
/// no CSV fails the test.
std::vector<std::vector<std::string>> csvLines(const std::string& text);

}  // namespace veyruna::tests
