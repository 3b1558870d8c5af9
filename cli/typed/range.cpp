#include "cli/typed/range.h"

#include "cli/typed/sky.h"
#include "words/dates.h"
#include "words/quoting.h"
#include "words/usage_error.h"

namespace veyruna::cli {

namespace {

constexpr const char* example = ", such as --from 720-01-01 --for 1 year";

/// Where --local clocks stand; nothing for standard time.
std::optional<double> clocksLongitude(const Typed& typed, const std::vector<Place>& places) {
  if (!typed.isLocal) {
    return std::nullopt;
  }
  if (places.size() != 1) {
    throw words::UsageError(
        "--local: local clocks are those of one place; give it with --location, or with --lat and "
        "--long");
  }
  return places.front().longitude;
}

double endOf(const Typed& typed, double from, std::optional<double> longitude) {
  if (typed.to.empty() == typed.length.empty()) {
    throw words::UsageError(
        typed.to.empty() ? typed.command + " needs an end: --to DATE, or --for N UNIT" + example
                         : "--to " + words::inQuotes(typed.to) + " and --for " +
                               words::inQuotes(typed.length) + " name two ends; give one");
  }
  const auto ifTyped = [](const std::string& text) {
    return text.empty() ? std::nullopt : std::optional(text);
  };
  return words::readEnd("--", {typed.from, ifTyped(typed.to), ifTyped(typed.length)}, from,
                        longitude);
}

}  // namespace

std::vector<Place> placesOf(const Typed& typed) {
  if (typed.location == everyPlace) {
    return savedPlaces();
  }
  return typed.hasPlace ? std::vector{placeOf(typed)} : std::vector<Place>();
}

almanac::Range rangeOf(const Typed& typed, const std::vector<Place>& places) {
  if (typed.from.empty()) {
    throw words::UsageError(typed.command + " needs a beginning: --from DATE" + example);
  }
  const std::optional<double> longitude = clocksLongitude(typed, places);
  const double from = words::readMoment("--from", typed.from, longitude);
  return {from, endOf(typed, from, longitude)};
}

}  // namespace veyruna::cli
