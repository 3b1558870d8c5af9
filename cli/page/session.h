#pragma once

#include <optional>
#include <string>

#include "almanac/motion/range.h"
#include "cli/typed/places.h"

namespace veyruna::cli {

/// What a page is made for. Where nothing is said, the page is free.
struct Session {
  std::string title = {};
  std::optional<double> baseTime = {};        ///< at which it opens, days
  std::optional<almanac::Range> bounds = {};  ///< that it does not leave
  std::optional<Place> place = {};            ///< where it opens
  bool isForPlayers = false;                  ///< shows what eyes can see from that place, no more
};

/// As the page reads it: a JSON object that may stand in HTML.
std::string sessionJson(const Session& session);

}  // namespace veyruna::cli
