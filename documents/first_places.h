#pragma once

#include <array>
#include <string_view>

namespace veyruna::documents {

/// A place that people know without having saved one, degrees north and east.
struct FirstPlace {
  std::string_view name;
  double latitudeDegrees;
  double longitudeDegrees;
};

/// The thirteen places of a first start, in no particular order.
inline constexpr std::array<FirstPlace, 13> firstPlaces = {{
    {"Wendmark", 40.5, -20.9},
    {"Morvay", 37.7, -16.4},
    {"Istene", 27.4, 3.3},
    {"Paldrick", 34.5, 11.1},
    {"Vossenfel", 11.5, 25.3},
    {"Quarrelund", 21.9, 33.9},
    {"Ebb", 13.4, 8.8},
    {"Solvane", 32.1, -4.7},
    {"Hestmoor", 44.4, -12.2},
    {"Sarrow", 31.0, -16.3},
    {"Ulmet", 24.4, -19.7},
    {"Dravenne", 23.3, 26.7},
    {"Kessa", 21.0, 5.1},
}};

}  // namespace veyruna::documents
