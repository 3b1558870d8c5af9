#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>

#include "cli/typed/places.h"

namespace veyruna::cli {

/// Finds a place by its saved name, as savedPlace does.
using PlaceFinder = std::function<Place(const std::string& name)>;

/// The places of rows; each is looked up once.
class RowPlaces {
 public:
  /// Keeps the references. `usual` is the place of rows that name none.
  RowPlaces(const std::optional<Place>& usual, const PlaceFinder& placeNamed)
      : usual_(usual), placeNamed_(placeNamed) {}

  /// The place of coordinates such as "40.5N 20.9W" or "40.5, -20.9", or that of a saved name.
  /// Throws UsageError.
  const Place& of(const std::string& text);

 private:
  struct Known {
    std::optional<Place> place;
    std::string problem;  ///< why there is none
  };

  [[nodiscard]] Place read(const std::string& text) const;
  [[nodiscard]] Place named(const std::string& text) const;

  const std::optional<Place>& usual_;
  const PlaceFinder& placeNamed_;
  std::map<std::string, Known, std::less<>> known_;
};

}  // namespace veyruna::cli
