#include "tests/support/patience.h"

#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

namespace veyruna::tests {

namespace {

std::string& lastWords() {
  static std::string words;
  return words;
}

/// The alarm's default action ends the program; these words come before it. The thread sanitizer
/// keeps handlers waiting for as long as a thread only computes, so there the default must do.
void listenToAlarm() {
#if !defined(__SANITIZE_THREAD__)
  struct sigaction action {};
  action.sa_flags = static_cast<int>(SA_RESETHAND);
  action.sa_handler = [](int signal) {
    // Nothing can be done about words that are not heard.
    [[maybe_unused]] const ssize_t written =
        write(STDERR_FILENO, lastWords().data(), lastWords().size());
    raise(signal);
  };
  sigaction(SIGALRM, &action, nullptr);
#endif
}

class Patience : public testing::EmptyTestEventListener {
 public:
  explicit Patience(unsigned seconds) : seconds_(seconds) {}

  void OnTestStart(const testing::TestInfo& test) override {
    lastWords() = std::string(test.test_suite_name()) + "." + test.name() +
                  " has not ended after " + std::to_string(seconds_) +
                  " seconds (VEYRUNA_PATIENCE)\n";
    alarm(seconds_);
  }

  void OnTestEnd(const testing::TestInfo& /*test*/) override { alarm(0); }

 private:
  unsigned seconds_;
};

unsigned patienceSeconds() {
  constexpr unsigned usual = 120;
  const char* const given = std::getenv("VEYRUNA_PATIENCE");
  if (given == nullptr) {
    return usual;
  }
  char* end = nullptr;
  const unsigned long seconds = std::strtoul(given, &end, 10);
  return end == given || *end != '\0' ? usual : static_cast<unsigned>(seconds);
}

}  // namespace

void endTestsThatHang() {
  listenToAlarm();
  testing::UnitTest::GetInstance()->listeners().Append(new Patience(patienceSeconds()));
}

}  // namespace veyruna::tests
