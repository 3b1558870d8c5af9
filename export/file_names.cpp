#include "export/file_names.h"

#include <QTextBoundaryFinder>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "astro/number_text.h"

namespace veyruna::exports {

namespace {

using model::AstronomyModel;

/// "12.50°W". An infinite field is shown as such.
QString coordinateText(double degrees, char16_t letter) {
  std::string number;
  if (std::isfinite(degrees)) {
    astro::appendFixed(number, degrees, 2);
  } else {
    number = astro::shortestText(degrees);
  }
  return QString::fromStdString(number) + QChar(u'°') + QChar(letter);
}

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

/// "720-03-15 06-30".
QString momentText(const AstronomyModel& model) {
  std::string text;
  astro::appendPaddedInteger(text, model.year(), 3);
  text += '-';
  astro::appendPaddedInteger(text, numberOfIndex(model.monthIndex()), 2);
  text += '-';
  astro::appendPaddedInteger(text, numberOfIndex(model.dayIndex()), 2);
  text += ' ';
  astro::appendPaddedInteger(text, wholeHours(model.hour()), 2);
  text += '-';
  astro::appendPaddedInteger(text, wholeMinutes(model.hour()), 2);
  return QString::fromStdString(text);
}

/// The text as a part of a file name.
QString withoutSeparators(QString text) {
  for (QChar& character : text) {
    if (character == u'/' || character.category() == QChar::Other_Control) {
      character = u'-';
    }
  }
  return text;
}

/// As many of the text's characters, as a person counts them, as fit into so many bytes of UTF-8.
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

}  // namespace

QString inputPlaceText(const AstronomyModel& model, QStringView between) {
  if (model.selectedCityID() == model::manualCityID()) {
    return coordinateText(model.manualLatDeg(), model.latNorth() ? u'N' : u'S') +
           between.toString() +
           coordinateText(model.manualLongDeg(), model.longWest() ? u'W' : u'E');
  }
  const auto& cities = model.cities();
  const auto selected = std::find_if(cities.begin(), cities.end(), [&](const auto& city) {
    return city.id == model.selectedCityID();
  });
  return selected == cities.end() ? model::manualCity().name : selected->name;
}

QString proposedFileName(const AstronomyModel& model, QStringView prefix, QStringView extension) {
  const QString before = prefix.toString() + QStringLiteral(" - ");
  const QString after =
      QStringLiteral(" - ") + momentText(model) + QChar(u'.') + extension.toString();
  const qsizetype bytesLeft = longestNameBytes - before.toUtf8().size() - after.toUtf8().size();
  return before + fitted(withoutSeparators(inputPlaceText(model, u" ")), bytesLeft) + after;
}

}  // namespace veyruna::exports
