#include "cli/almanac/range.h"

#include "cli/typed/arguments.h"
#include "cli/typed/dates.h"
#include "cli/typed/errors.h"
#include "cli/typed/quoting.h"
#include "cli/typed/sky.h"

namespace veyruna::cli {

namespace {

constexpr const char* example = ", such as --from 720-01-01 --for 1 year";

/// Where --local clocks stand; nothing for standard time.
std::optional<double> clocksLongitude(const Typed& typed, const std::vector<Place>& places) {
  if (!typed.isLocal) {
    return std::nullopt;
  }
  if (places.size() != 1) {
    throw UsageError(
        "--local: local clocks are those of one place; give it with --location, or with --lat and "
        "--long");
  }
  return places.front().longitude;
}

double endOf(const Typed& typed, double from, std::optional<double> longitude) {
  if (typed.to.empty() == typed.length.empty()) {
    throw UsageError(typed.to.empty()
                         ? typed.command + " needs an end: --to DATE, or --for N UNIT" + example
                         : "--to " + inQuotes(typed.to) + " and --for " + inQuotes(typed.length) +
                               " name two ends; give one");
  }
  return typed.to.empty() ? checkedBaseTime(from + readLength("--for", typed.length),
                                            "--for: " + inQuotes(typed.length))
                          : readMoment("--to", typed.to, longitude);
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
    throw UsageError(typed.command + " needs a beginning: --from DATE" + example);
  }
  const std::optional<double> longitude = clocksLongitude(typed, places);
  const double from = readMoment("--from", typed.from, longitude);
  const double to = endOf(typed, from, longitude);
  if (to < from) {
    throw UsageError("--to: " + inQuotes(typed.to) + " is before --from " + inQuotes(typed.from));
  }
  return {from, to};
}

}  // namespace veyruna::cli
