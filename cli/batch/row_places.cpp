#include "cli/batch/row_places.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

#include "words/usage_error.h"
#include "words/values.h"

namespace veyruna::cli {

namespace {

constexpr std::string_view acceptedPlaces =
    "a latitude of at most 90 degrees and a longitude of at most 180, such as \"40.5N 20.9W\" or "
    "\"40.5, -20.9\", or the name of a saved place";

constexpr std::string_view digitsAndSigns = "+-.0123456789";

std::string_view withoutBlanks(std::string_view text) {
  const std::size_t first = std::min(text.find_first_not_of(' '), text.size());
  const std::size_t last = text.find_last_not_of(' ');
  return text.substr(first, last + 1 - first);  // of nothing but blanks: from its end, nothing
}

/// Whether a text is meant as a number, and no name.
bool beginsLikeNumber(std::string_view text) {
  return (!text.empty() && digitsAndSigns.find(text.front()) != std::string_view::npos) ||
         text.starts_with("−");
}

/// Where the second of two numbers begins, or the comma in front of it; npos where there is none.
std::size_t betweenNumbers(std::string_view text) {
  const std::size_t comma = text.find(',');
  std::size_t blank = text.find(' ');
  while (comma == std::string_view::npos && blank != std::string_view::npos &&
         !beginsLikeNumber(text.substr(blank + 1))) {
    blank = text.find(' ', blank + 1);
  }
  return comma != std::string_view::npos ? comma : blank;
}

/// A place that is given as coordinates; nothing for anything else.
std::optional<Place> coordinatesOf(const std::string& text) {
  const std::size_t between = std::min(betweenNumbers(text), text.size());
  const std::size_t behind = std::min(between + 1, text.size());
  const std::string_view whole(text);
  const std::optional<double> latitude = words::latitudeOf(withoutBlanks(whole.substr(0, between)));
  const std::optional<double> longitude = words::longitudeOf(withoutBlanks(whole.substr(behind)));
  return latitude && longitude ? std::optional(placeAt(*latitude, *longitude)) : std::nullopt;
}

}  // namespace

const Place& RowPlaces::of(const std::string& text) {
  const auto [entry, isNew] = known_.try_emplace(text);
  if (isNew) {
    try {
      entry->second.place = read(text);
    } catch (const std::runtime_error& error) {
      entry->second.problem = error.what();
    }
  }
  if (!entry->second.place) {
    throw words::UsageError(entry->second.problem);
  }
  return *entry->second.place;
}

Place RowPlaces::read(const std::string& text) const {
  if (text.empty()) {
    if (!usual_) {
      words::refuse("place", text, acceptedPlaces);
    }
    return *usual_;
  }
  const std::optional<Place> place = coordinatesOf(text);
  return place ? *place : named(text);
}

Place RowPlaces::named(const std::string& text) const {
  try {
    return placeNamed_(text);
  } catch (const words::UsageError& error) {
    if (beginsLikeNumber(text)) {
      words::refuse("place", text, acceptedPlaces);
    }
    throw words::UsageError(error.what() +
                            std::string("; or give coordinates such as 40.5N 20.9W"));
  }
}

}  // namespace veyruna::cli
