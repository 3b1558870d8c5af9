#pragma once

#include <string>
#include <vector>

#include "almanac/motion/body.h"
#include "astro/observer.h"
#include "records/record.h"

/// What records of the sky have in common.
namespace veyruna::records {

/// Radians as degrees in [0, 360), of any turn.
double degreesInTurn(double radians);

/// "thessil", "ivro" and so on, in the order of every list of bodies.
const std::vector<std::string>& bodyWords();

/// "bralo-dunmor" and so on, in the order of astro::allPlanetPairs.
const std::vector<std::string>& planetPairWords();

/// "Gimbral", "Sevrino" and so on.
const std::vector<std::string>& signWords();

/// `base_time_days` and `date`.
std::vector<Field> momentFields();
Row momentValues(double baseTime);

/// `latitude_degrees` and `longitude_degrees`.
std::vector<Field> placeFields();
Row placeValues(const astro::Observer& place);

/// One list behind the other.
template <class Entry>
std::vector<Entry> joined(std::vector<Entry> first, const std::vector<Entry>& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

}  // namespace veyruna::records
