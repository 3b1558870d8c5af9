#include "tests/support/golden.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/support/reference_case.h"
#include "tests/support/source_path.h"

namespace veyruna::tests {

namespace {

/// The first line in which two texts differ, in both.
std::string firstDifference(const std::string& golden, const std::string& text) {
  std::istringstream expected(golden);
  std::istringstream received(text);
  for (int number = 1;; ++number) {
    std::string line;
    std::string other;
    const bool isThere = static_cast<bool>(std::getline(expected, line));
    const bool isOtherThere = static_cast<bool>(std::getline(received, other));
    if (!isThere && !isOtherThere) {
      return "Only the line feed at the end differs.";
    }
    if (isThere != isOtherThere || line != other) {
      return "Line " + std::to_string(number) +
             "\n  golden:   " + (isThere ? line : "(no such line)") +
             "\n  received: " + (isOtherThere ? other : "(no such line)");
    }
  }
}

}  // namespace

testing::AssertionResult isGolden(const std::string& root, const std::string& name,
                                  const std::string& text) {
  const std::string golden = root + "/" + name;
  const std::string received = golden + ".received";
  const bool isThere = std::filesystem::exists(golden);
  const std::string expected = isThere ? fileContent(golden) : "";
  if (isThere && text == expected) {
    std::error_code ignored;
    std::filesystem::remove(received, ignored);
    return testing::AssertionSuccess();
  }
  std::ofstream file(received, std::ios::binary);
  file << text;
  const bool isKept = static_cast<bool>(file.flush());
  return testing::AssertionFailure()
         << name << " is not what is written now. " << firstDifference(expected, text) << '\n'
         << (isKept ? "To accept what is written now: " + root + "/accept " + name
                    : "It cannot be kept as " + received);
}

testing::AssertionResult isGolden(const std::string& name, const std::string& text) {
  return isGolden(sourcePath("tests"), name, text);
}

}  // namespace veyruna::tests
