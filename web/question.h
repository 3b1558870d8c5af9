#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "astro/observer.h"

namespace veyruna::web {

/// What a script asks: texts under names, read as strictly as what a person types. What cannot be
/// used is a words::UsageError, which quotes it and says what is accepted.
class Question {
 public:
  /// Of "ask=moment&lat=40.5N": the form in which addresses of the web carry values, as every
  /// browser writes it. A name may come several times.
  explicit Question(std::string_view query);

  /// Refuses whatever has another name than "ask" and these.
  void acceptOnly(std::span<const std::string_view> names) const;

  /// All that was given under a name, in order.
  [[nodiscard]] std::vector<std::string> all(const std::string& name) const;
  /// The one text under a name; nothing where there is none.
  [[nodiscard]] std::optional<std::string> text(const std::string& name) const;
  [[nodiscard]] std::string required(const std::string& name, std::string_view accepted) const;
  /// "true" or "false"; not so where it is not said.
  [[nodiscard]] bool isSo(const std::string& name) const;

  /// Base time (days), as words::readMoment takes it; its clock that of `longitude` (radians) where
  /// there is one.
  [[nodiscard]] double moment(const std::string& name, std::optional<double> longitude) const;
  /// Of lat and long, degrees as a person types them; the base time is 0.
  [[nodiscard]] astro::Observer place() const;
  /// The place at the moment; local where it says so.
  [[nodiscard]] astro::Observer sky() const;

 private:
  std::map<std::string, std::vector<std::string>, std::less<>> values_;
};

}  // namespace veyruna::web
