// The command among others: pipes, terminals, locales and memory.
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <pty.h>
#include <stdexcept>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "cli/written/progress.h"
#include "reports/conjunctions.h"
#include "tests/cli/process.h"
#include "tests/cli/scratch_folder.h"
#include "tests/support/reference_case.h"

namespace veyruna {
namespace {

using tests::Outcome;
using tests::Process;
using tests::run;
using tests::words;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif

TEST(Pipe, AReaderThatHasSeenEnoughEndsItQuietly) {
  for (const bool ignored : {false, true}) {
    Process table(
        {.arguments = words("conjunctions --rows 5000000 --step 1"), .ignoresPipeSignal = ignored});
    const std::string header = reports::conjunctionTable(0.0, {0, 1.0});
    EXPECT_EQ(table.firstLineThenClose(), header.substr(0, header.find('\n') + 1));
    const Outcome outcome = table.outcome();
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.signal, SIGPIPE);
  }
}

TEST(Pipe, WithoutStandardOutputItSaysSo) {
  const Outcome outcome = run({.arguments = {"moment"}, .closesStandardOutput = true});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.err.find("standard output"), std::string::npos);
}

const std::string longTable = "conjunctions --rows 50000000 --step 0.01";

TEST(Progress, ShowsOnATerminal) {
  Process table(
      {.arguments = words(longTable), .standardOutput = "/dev/null", .errorsOnTerminal = true});
  const std::string shown = table.errorsWithin(60'000, " %");
  EXPECT_NE(shown.find(" of 50000001 rows, "), std::string::npos) << shown;
  EXPECT_EQ(shown.find('\n'), std::string::npos) << shown;
}

TEST(Progress, StaysOutOfAPipe) {
  Process table({.arguments = words(longTable), .standardOutput = "/dev/null"});
  EXPECT_EQ(table.errorsWithin(1800, "rows"), "");
  table.kill(SIGKILL);
  EXPECT_EQ(table.outcome().signal, SIGKILL) << "the table was too short to tell";
}

TEST(Progress, AShortTableShowsNone) {
  const Outcome outcome =
      run({.arguments = words("conjunctions --rows 300 --step 1"), .errorsOnTerminal = true});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
}

/// What is shown on a terminal by `work` that writes its progress there, and whose document goes to
/// standard output: the same terminal, or a pipe.
std::string shownBy(bool isOutOnTerminal, const std::function<void()>& work) {
  int mine = -1;
  int theirs = -1;
  if (openpty(&mine, &theirs, nullptr, nullptr, nullptr) != 0) {
    throw std::runtime_error("no terminal for the test");
  }
  const pid_t child = fork();
  if (child == 0) {
    std::array<int, 2> pipeEnds{};
    const int out = isOutOnTerminal ? theirs : (pipe(pipeEnds.data()) == 0 ? pipeEnds[1] : -1);
    if (dup2(out, STDOUT_FILENO) < 0 || dup2(theirs, STDERR_FILENO) < 0) {
      _exit(1);
    }
    work();
    std::fflush(stderr);
    _exit(0);
  }
  close(theirs);
  std::string shown;
  std::array<char, 256> piece{};
  for (ssize_t count = 1; count > 0;) {
    count = read(mine, piece.data(), piece.size());
    shown.append(piece.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
  }
  close(mine);
  int status = -1;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  return shown;
}

constexpr auto longerThanItsSilence = std::chrono::milliseconds(1100);

/// What progress shows there when its rows come a while after it began.
std::string progressShown(bool isOutOnTerminal, bool showsDocument) {
  return shownBy(isOutOnTerminal, [showsDocument] {
    cli::Progress progress(1000, "rows", showsDocument);
    std::this_thread::sleep_for(longerThanItsSilence);
    for (int row = 0; row < 256; ++row) {
      progress.advance();
    }
  });
}

TEST(Progress, StaysOutOfATableOnTheSameTerminal) {
  const std::string line = "\r[#####...............] 256 of 1000 rows, 25 %\x1b[K\r\x1b[K";
  EXPECT_EQ(progressShown(true, true), "");
  EXPECT_EQ(progressShown(true, false), line);  // the table goes to a file
  EXPECT_EQ(progressShown(false, true), line);
}

TEST(Progress, IsWholeAtMost) {
  // The moment of a meeting that has begun may lie days behind the end of what is asked.
  const std::string shown = shownBy(false, [] {
    cli::Progress progress(2, "days", false);
    std::this_thread::sleep_for(longerThanItsSilence);
    progress.reach(11);
  });
  EXPECT_EQ(shown, "\r[####################] 2 of 2 days, 100 %\x1b[K\r\x1b[K");
}

TEST(Locale, ADecimalCommaChangesNothing) {
  const char* const locale = std::getenv("VEYRUNA_TEST_LOCALE");
  if (locale == nullptr) {
    GTEST_SKIP() << "runs as cli_tests_with_decimal_comma";
  }
  const std::vector<std::string> environment = {std::string("LC_ALL=") + locale,
                                                std::string("LANG=") + locale};
  for (const char* const arguments :
       {"star-map", "horoscope", "horoscope --bw", "hourly", "positions", "moment", "daily",
        "--hour 18:20 --lat 40.25N base-time", "--help", "ephemeris --rows 3 --step 0.25"}) {
    const Outcome german = run({.arguments = words(arguments), .environment = environment});
    const Outcome plain = run({.arguments = words(arguments), .environment = {"LC_ALL=C"}});
    EXPECT_EQ(german.status, 0);
    EXPECT_EQ(german.out, plain.out);
  }
  const Outcome refused =
      run({.arguments = {"--lat", "40,5", "moment"}, .environment = environment});
  EXPECT_EQ(refused.status, 2);
}

/// Whether a command can write in so much address space. The peak that wait4 tells would not do: it
/// begins with the memory of the tests themselves.
bool fitsInto(std::size_t bytes, const std::string& command) {
  const Outcome outcome =
      run({.arguments = words(command), .standardOutput = "/dev/null", .addressSpace = bytes});
  return outcome.status == 0 && outcome.err.empty();
}

/// The same command, of little and of much.
struct Lengths {
  std::string little;
  std::string much;
};

TEST(Memory, WhatIsLongNeedsNoMoreThanWhatIsShort) {
  if (isSanitized) {
    GTEST_SKIP() << "a sanitizer's own memory is far larger";
  }
  constexpr std::size_t mebibyte = 1U << 20U;
  const std::string table = " --step 1/24 --rows ";
  const std::string years = " --from 1-1-1 --for ";
  for (const auto& [little, much] : std::vector<Lengths>{
           {"conjunctions" + table + "24", "conjunctions" + table + "720000"},
           {"ephemeris" + table + "24", "ephemeris" + table + "720000"},
           {"events --kind moon" + years + "1 year", "events --kind moon" + years + "20000 years"},
           {"events --kind moon --format json" + years + "1 year",
            "events --kind moon --format json" + years + "20000 years"},
           {"search eclipse" + years + "1 year", "search eclipse" + years + "20000 years"}}) {
    std::size_t enough = 1;
    while (!fitsInto(enough * mebibyte, little)) {
      ++enough;
      ASSERT_LT(enough, 512U) << little;
    }
    EXPECT_TRUE(fitsInto((enough + 1) * mebibyte, much)) << much << enough;
  }
}

}  // namespace
}  // namespace veyruna
