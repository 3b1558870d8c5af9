#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/record.h"

namespace veyruna::cli {

/// A place as the engine takes it: radians, north and east positive.
struct Place {
  double latitude;
  double longitude;
  std::string words;  ///< "Ebb", or "40.50°N  20.90°W"
};

/// A place that was given as coordinates.
Place placeAt(double latitude, double longitude);

/// The saved place of that name in any letter case; "Manual" is the stored manual fields, and needs
/// no list. Reads the person's own files and writes nothing; without a file of places, those of a
/// first start.
/// Throws UsageError in which `what` names what was typed and which lists the known names, or
/// std::runtime_error where the file is no list.
Place savedPlace(const std::string& name, const std::string& what = "--location");

/// What stands for every saved place where several may be named.
inline constexpr std::string_view everyPlace = "all";

/// Every saved place that is on the globe, in their order. Throws std::runtime_error where the file
/// is no list.
std::vector<Place> savedPlaces();

/// Every saved place with its coordinates, "Manual" first, a line each.
std::string savedPlacesText();

/// The same as rows of records::locationsType.
std::vector<records::Row> savedPlacesRows();

}  // namespace veyruna::cli
