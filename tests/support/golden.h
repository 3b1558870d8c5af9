#pragma once

#include <gtest/gtest.h>
#include <string>

namespace veyruna::tests {

/// Whether a text is, to the byte, the golden file `name` of the folder `root`, which also holds
/// the script `accept`. Where it is not, it is left beside the golden file as NAME.received, and
/// the failure names the first line that differs and the command that accepts it. Where it is, what
/// was received before goes.
testing::AssertionResult isGolden(const std::string& root, const std::string& name,
                                  const std::string& text);

/// The same of the golden files under tests/: "reference/south/hourly.txt".
testing::AssertionResult isGolden(const std::string& name, const std::string& text);

}  // namespace veyruna::tests
