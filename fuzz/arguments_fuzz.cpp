// Any bytes as the arguments of the command, one a line: refused in one line of UTF-8, or a moment,
// a place and a stretch of time that the engine can calculate. Nothing is written, and nobody's
// saved places are read.
#include <cmath>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include "astro/angle.h"
#include "astro/calendar.h"
#include "cli/typed/grammar.h"
#include "cli/typed/range.h"
#include "cli/typed/sky.h"
#include "fuzz/target.h"
#include "words/usage_error.h"
#include "words/utf8.h"

using namespace veyruna;
using fuzz::promise;

namespace {

void tryRefusal(const words::UsageError& error) {
  const std::string message = error.what();
  promise(!message.empty() && message.find('\n') == std::string::npos, "a refusal is one line");
  promise(words::isUtf8(message), "a refusal is UTF-8");
}

template <class Try>
void tryOrRefuse(Try attempt) {
  try {
    attempt();
  } catch (const words::UsageError& error) {
    tryRefusal(error);
  }
}

void trySky(const cli::Typed& typed) {
  const astro::Observer sky = cli::skyOf(typed).observer;
  promise(std::abs(sky.baseTime) <= astro::baseTimeLimitDays, "a moment is within reach");
  promise(std::abs(sky.latitude) <= astro::pi / 2 && std::abs(sky.longitude) <= astro::pi,
          "a place is on the globe");
}

void tryStretch(const cli::Typed& typed) {
  const almanac::Range range = cli::rangeOf(typed, cli::placesOf(typed));
  promise(std::abs(range.from) <= astro::baseTimeLimitDays &&
              std::abs(range.to) <= astro::baseTimeLimitDays,
          "a stretch is within reach");
  promise(range.from <= range.to, "a stretch ends behind its beginning");
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line);
  }
  return lines;
}

/// Saved places are those of a first start, whoever tries.
bool hideSavedPlaces() {
  for (const char* folder : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"}) {
    setenv(folder, "/nonexistent", 1);
  }
  return true;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  static const bool areHidden = hideSavedPlaces();
  promise(areHidden, "saved places are hidden");
  const std::vector<std::string> arguments = linesOf(std::string(bytes, bytes + size));
  cli::Grammar grammar;
  tryOrRefuse([&] {
    const cli::Typed& typed = grammar.parse(arguments);
    promise(!typed.command.empty(), "there is something to do");
    if (typed.command == "help") {
      promise(!grammar.helpText(typed.helpTopic).empty(), "help says something");
    }
    tryOrRefuse([&] { trySky(typed); });
    tryOrRefuse([&] { tryStretch(typed); });
  });
  return 0;
}
