#include "model/name_parts.h"

#include <QTextBoundaryFinder>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "astro/number_text.h"

namespace veyruna::model {

namespace {

/// The number a person counts from one, of an index that counts from zero.
std::int64_t numberOfIndex(std::int64_t index) {
  return index == std::numeric_limits<std::int64_t>::max() ? index : index + 1;
}

/// The hours of a clock, cut to a whole number, and within an integer's range at that.
std::int64_t wholeHours(double hour) {
  constexpr double most = 9e18;
  return std::isnan(hour) ? 0 : static_cast<std::int64_t>(std::clamp(hour, -most, most));
}

/// The minutes past a clock's hour, cut to a whole number.
std::int64_t wholeMinutes(double hour) {
  const double fraction = hour - std::floor(hour);
  return std::isnan(fraction) ? 0 : static_cast<std::int64_t>(fraction * 60.0);
}

}  // namespace

QString coordinateInName(double degrees, char16_t letter) {
  std::string number;
  if (std::isfinite(degrees)) {
    astro::appendFixed(number, degrees, 2);
  } else {
    number = astro::shortestText(degrees);
  }
  return QString::fromStdString(number) + QChar(u'°') + QChar(letter);
}

QString momentInName(const astro::CalendarReading& reading) {
  std::string text;
  astro::appendPaddedInteger(text, reading.year, 3);
  text += '-';
  astro::appendPaddedInteger(text, numberOfIndex(reading.monthIndex), 2);
  text += '-';
  astro::appendPaddedInteger(text, numberOfIndex(reading.dayIndex), 2);
  text += ' ';
  astro::appendPaddedInteger(text, wholeHours(reading.hour), 2);
  text += '-';
  astro::appendPaddedInteger(text, wholeMinutes(reading.hour), 2);
  return QString::fromStdString(text);
}

QString withoutSeparators(QString text) {
  for (QChar& character : text) {
    if (character == u'/' || character.category() == QChar::Other_Control) {
      character = u'-';
    }
  }
  return text;
}

QString fitted(const QString& text, qsizetype bytes) {
  if (text.toUtf8().size() <= bytes) {
    return text;
  }
  QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
  QString kept;
  qsizetype end = 0;
  while ((end = characters.toNextBoundary()) > 0 && text.first(end).toUtf8().size() <= bytes) {
    kept = text.first(end);
  }
  return kept;
}

}  // namespace veyruna::model
