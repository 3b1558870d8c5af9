#pragma once

#include <vector>

#include "almanac/search/questions.h"

namespace veyruna::almanac {

/// A condition put to the sky of a place, moment after moment.
class Inquiry {
 public:
  Inquiry(const Condition& condition, const astro::Observer& place, bool isLocal);

  /// Whether the condition holds at a moment, and for how long from then on it cannot change. Of
  /// all whose parts fail, as long as one of these fails; the parts that change seldom are asked
  /// first, and the others only where they could tell more. Cheap where moments come in order: a
  /// part is not asked again while it is known.
  State at(double t);

 private:
  enum class Kind { leaf, any, all, negation };

  State ofParts(double t, bool decisive);

  Kind kind_ = Kind::leaf;
  Question ask_;
  std::vector<Inquiry> parts_;  ///< those that change seldom first
  double pace_ = 0.0;           ///< about how many days pass from change to change
  bool held_ = false;
  double askedAt_ = 0.0;
  double knownUntil_ = 0.0;
};

}  // namespace veyruna::almanac
