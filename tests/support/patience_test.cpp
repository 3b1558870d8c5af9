// A test that hangs ends, and is named.
#include "tests/support/patience.h"

#include <atomic>
#include <csignal>
#include <gtest/gtest.h>
#include <unistd.h>

namespace veyruna::tests {
namespace {

TEST(Patience, EveryTestHasItsTime) {
  const unsigned left = alarm(0);
  alarm(left);
  EXPECT_GT(left, 0U);
}

TEST(Patience, ATestThatHangsEndsTheProgram) {
#if defined(__SANITIZE_THREAD__)
  const char* const words = "";  // the thread sanitizer keeps its handler waiting
#else
  const char* const words = "Patience.ATestThatHangsEndsTheProgram has not ended after [0-9]+ s";
#endif
  const auto hang = [] {
    alarm(1);
    for (;;) {
      pause();
    }
  };
  EXPECT_EXIT(hang(), testing::KilledBySignal(SIGALRM), words);
}

TEST(Patience, ATestThatOnlyComputesEndsTheProgramToo) {
  const auto hang = [] {
    alarm(1);
    for (std::atomic<unsigned> turn = 0;; ++turn) {
    }
  };
  EXPECT_EXIT(hang(), testing::KilledBySignal(SIGALRM), "");
}

}  // namespace
}  // namespace veyruna::tests
