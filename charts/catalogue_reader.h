#pragma once

#include <stdexcept>
#include <string_view>
#include <vector>

#include "charts/star_catalogue.h"

namespace veyruna::charts {

/// A catalogue file that cannot be read; the message quotes the line and says what is accepted.
class CatalogueError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads "name,frame,color,phi,theta,magnitude" rows under a header line of just these names.
/// `frame` is "equatorial" or "ecliptic", angles are radians, a name holds no comma.
/// Throws CatalogueError.
std::vector<FixedStar> readStars(std::string_view csv);

/// Reads "from,to" rows under a header line of these names. Throws CatalogueError.
std::vector<LineNames> readLineNames(std::string_view csv);

}  // namespace veyruna::charts
