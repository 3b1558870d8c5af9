#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <locale>
#include <stdexcept>

#include "tests/support/patience.h"

/// Runs the tests, under the locale named in VEYRUNA_TEST_LOCALE where it is set. A locale that
/// cannot be had, or has no decimal comma, fails the run: it would prove nothing.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  veyruna::tests::endTestsThatHang();
  if (const char* name = std::getenv("VEYRUNA_TEST_LOCALE")) {
    try {
      std::locale::global(std::locale(name));
    } catch (const std::runtime_error&) {
      std::fprintf(stderr, "the locale %s is not installed\n", name);
      return 1;
    }
    char text[8];
    std::snprintf(text, sizeof text, "%.1f", 0.5);
    if (text[1] != ',') {
      std::fprintf(stderr, "the locale %s writes no decimal comma\n", name);
      return 1;
    }
  }
  return RUN_ALL_TESTS();
}
