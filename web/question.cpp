#include "web/question.h"

#include <algorithm>
#include <charconv>

#include "words/dates.h"
#include "words/listing.h"
#include "words/quoting.h"
#include "words/usage_error.h"
#include "words/values.h"

namespace veyruna::web {

namespace {

/// A text of an address as it was before it went into one; what is no escape stays.
std::string unescaped(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    unsigned byte = 0;
    const char* const digits = text.data() + i + 1;
    if (text[i] == '%' && i + 2 < text.size() &&
        std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2) {
      plain += static_cast<char>(byte);
      i += 2;
    } else {
      plain += text[i] == '+' ? ' ' : text[i];
    }
  }
  return plain;
}

}  // namespace

Question::Question(std::string_view query) {
  while (!query.empty()) {
    const std::size_t end = std::min(query.find('&'), query.size());
    const std::string_view pair = query.substr(0, end);
    const std::size_t equals = std::min(pair.find('='), pair.size());
    values_[unescaped(pair.substr(0, equals))].push_back(
        unescaped(pair.substr(std::min(equals + 1, pair.size()))));
    query.remove_prefix(std::min(end + 1, query.size()));
  }
}

void Question::acceptOnly(std::span<const std::string_view> names) const {
  for (const auto& [name, values] : values_) {
    if (name != "ask" && std::ranges::count(names, name) == 0) {
      throw words::UsageError(words::inQuotes(name) + " is nothing that can be said here; give " +
                              words::joined(names));
    }
  }
}

std::vector<std::string> Question::all(const std::string& name) const {
  const auto found = values_.find(name);
  return found == values_.end() ? std::vector<std::string>() : found->second;
}

std::optional<std::string> Question::text(const std::string& name) const {
  const std::vector<std::string> given = all(name);
  if (given.size() > 1) {
    throw words::UsageError(name + ": " + words::inQuotes(given[0]) + " and " +
                            words::inQuotes(given[1]) + " are two; give one");
  }
  return given.empty() ? std::nullopt : std::optional(given.front());
}

std::string Question::required(const std::string& name, std::string_view accepted) const {
  const std::optional<std::string> given = text(name);
  if (!given) {
    throw words::UsageError(name + " is missing; give " + std::string(accepted));
  }
  return *given;
}

bool Question::isSo(const std::string& name) const {
  const std::string given = text(name).value_or("false");
  if (given != "true" && given != "false") {
    words::refuse(name, given, "true or false");
  }
  return given == "true";
}

double Question::moment(const std::string& name, std::optional<double> longitude) const {
  return words::readMoment(name, required(name, "a date such as 720-06-12T22:30"), longitude);
}

astro::Observer Question::place() const {
  const std::string latitude = required("lat", "degrees such as 40.5 or 40.5N");
  const std::string longitude = required("long", "degrees such as -20.9 or 20.9W");
  return {.baseTime = 0.0,
          .latitude = words::readLatitude("lat", latitude),
          .longitude = words::readLongitude("long", longitude)};
}

astro::Observer Question::sky() const {
  const astro::Observer there = place();
  return there.at(moment("moment", isSo("local") ? std::optional(there.longitude) : std::nullopt));
}

}  // namespace veyruna::web
