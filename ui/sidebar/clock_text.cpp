#include "ui/sidebar/clock_text.h"

#include <cmath>
#include <string>

#include "astro/number_text.h"

namespace veyruna::ui {

QString clockText(double hour) {
  const double minutes = std::trunc((hour - std::floor(hour)) * 60.0);
  std::string text;
  astro::appendPaddedFixed(text, std::trunc(hour) + 0.0, 2, 0);
  text += ':';
  astro::appendPaddedFixed(text, minutes, 2, 0);
  return QString::fromStdString(text);
}

}  // namespace veyruna::ui
