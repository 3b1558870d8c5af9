// Any bytes as a place, a clock, a month, a number or a step that is typed: what is accepted lies
// within what the refusals promise and reads back the same, all else is refused in one line.
#include <cmath>
#include <optional>
#include <string>
#include <string_view>

#include "astro/angle.h"
#include "astro/calendar.h"
#include "fuzz/target.h"
#include "words/angles.h"
#include "words/usage_error.h"
#include "words/utf8.h"
#include "words/values.h"

using namespace veyruna;
using fuzz::promise;

namespace {

/// What reading gives; nothing where it refuses.
template <class Read>
auto accepted(Read read) -> std::optional<decltype(read())> {
  try {
    return read();
  } catch (const words::UsageError& error) {
    const std::string message = error.what();
    promise(message.starts_with("--"), "a refusal names what was typed");
    promise(message.find('\n') == std::string::npos, "a refusal is one line");
    promise(words::isUtf8(message), "a refusal is UTF-8");
    return std::nullopt;
  }
}

void tryAsLatitude(const std::string& text) {
  const auto latitude = accepted([&] { return words::readLatitude("--lat", text); });
  promise(latitude == words::latitudeOf(text), "both readings of a latitude agree");
  if (latitude) {
    promise(std::abs(*latitude) <= astro::pi / 2, "a latitude is on the globe");
    promise(words::latitudeOf(words::degreesText(*latitude)) == latitude,
            "a latitude reads back the same");
    const std::string place = words::shortCoordinatesText(*latitude, 0.0);
    promise(words::latitudeOf(place.substr(0, place.find(','))) == latitude,
            "a latitude with its letter reads back the same");
  }
}

void tryAsLongitude(const std::string& text) {
  const auto longitude = accepted([&] { return words::readLongitude("--long", text); });
  promise(longitude == words::longitudeOf(text), "both readings of a longitude agree");
  if (longitude) {
    promise(std::abs(*longitude) <= astro::pi, "a longitude is on the globe");
    promise(words::longitudeOf(words::degreesText(*longitude)) == longitude,
            "a longitude reads back the same");
    const std::string place = words::shortCoordinatesText(0.0, *longitude);
    promise(words::longitudeOf(place.substr(place.find(',') + 1)) == longitude,
            "a longitude with its letter reads back the same");
  }
}

void tryAsNumber(const std::string& text) {
  const auto number = accepted([&] { return words::readNumber("--base-time", text, -8.0, 9.0); });
  promise(!number || (*number >= -8.0 && *number <= 9.0), "a number is within its bounds");
  const auto whole = accepted([&] { return words::readWholeNumber("--rows", text, -8, 9); });
  promise(!whole || (number && *number == static_cast<double>(*whole)),
          "a whole number is a number, too");
  const auto any = words::numberOf(text);
  promise(!any || std::isfinite(*any), "a number is finite");
  const auto step = accepted([&] { return words::readStepDays(text); });
  promise(!step || std::abs(*step) <= astro::baseTimeLimitDays, "a step is within reach");
}

void tryAsClock(const std::string& text) {
  const auto hour = accepted([&] { return words::readHour("--hour", text); });
  promise(!hour || (*hour >= 0.0 && *hour <= 24.0), "an hour is one of the day's");
  const auto month = accepted([&] { return words::readMonthIndex("--month", text); });
  promise(month == words::monthIndexOf(text), "both readings of a month agree");
  promise(!month || (*month >= 0 && *month < astro::monthsPerYear), "a month is one of the year's");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string text(bytes, bytes + size);
  tryAsLatitude(text);
  tryAsLongitude(text);
  tryAsNumber(text);
  tryAsClock(text);
  return 0;
}
