#include "reports/zodiac.h"

#include <algorithm>

#include "astro/angle.h"

namespace veyruna::reports {

const ZodiacSign& signAt(double longitude) {
  const double angle = astro::wrappedToClosedTurn(longitude);
  const auto next = std::find_if(zodiacSigns.begin(), zodiacSigns.end(),
                                 [angle](const ZodiacSign& sign) { return angle < sign.start; });
  return next == zodiacSigns.begin() ? zodiacSigns.back() : *(next - 1);
}

std::string_view signName(double longitude) {
  return signAt(longitude).name;
}

std::string_view signNameWithMeaning(double longitude) {
  return signAt(longitude).nameWithMeaning;
}

std::string_view plainName(const ZodiacSign& sign) {
  return sign.name.substr(0, sign.name.find_last_not_of(' ') + 1);
}

}  // namespace veyruna::reports
