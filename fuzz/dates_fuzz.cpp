// Any bytes as a moment and as a length of time: what is accepted lies within the calendar and
// reads back the same, and all else is refused with its text, in one line of UTF-8.
#include <cmath>
#include <optional>
#include <string>

#include "astro/angle.h"
#include "astro/calendar.h"
#include "fuzz/target.h"
#include "words/dates.h"
#include "words/usage_error.h"

using namespace veyruna;
using fuzz::promise;

namespace {

/// What reading gives; nothing where it refuses.
template <class Read>
std::optional<double> accepted(Read read) {
  try {
    return read();
  } catch (const words::UsageError& error) {
    const std::string message = error.what();
    promise(message.starts_with("--from: \""), "a refusal names what was typed");
    promise(message.find('\n') == std::string::npos, "a refusal is one line");
    return std::nullopt;
  }
}

void tryAsMoment(const std::string& text) {
  const auto moment = accepted([&] { return words::readMoment("--from", text); });
  const auto local = accepted([&] { return words::readMoment("--from", text, astro::pi / 3.0); });
  if (!moment) {
    return;
  }
  promise(std::abs(*moment) <= astro::baseTimeLimitDays, "a moment is within reach");
  if (text.front() == '@') {
    promise(local == moment, "a base time is the same everywhere");
    return;
  }
  promise(*moment >= astro::firstMidnight, "a date is of the calendar");
  // The local clock may lead over the edge of what is within reach.
  promise(!local || std::abs(*local - *moment) < 1.5, "local clocks are near standard ones");
  const std::string label = astro::calendarLabel(*moment);
  const std::string again =
      label.substr(0, label.find(' ')) + "T" + label.substr(label.find(' ') + 1, 5);
  promise(words::readMoment("--from", again) == *moment, "a date reads back the same");
}

void tryAsLength(const std::string& text) {
  if (const auto days = accepted([&] { return words::readLength("--from", text); })) {
    promise(*days >= 0.0, "a length is not below 0");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  tryAsMoment(text);
  tryAsLength(text);
  return 0;
}
