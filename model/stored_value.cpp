#include "model/stored_value.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include "astro/number_text.h"

namespace veyruna::model {

namespace {

bool isText(const QVariant& stored) {
  return stored.typeId() == QMetaType::QString;
}

bool isWhole(const QVariant& stored) {
  switch (stored.typeId()) {
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::ULongLong:
      return true;
    default:
      return false;
  }
}

/// All of the text as a number, or nothing.
template <class Number>
std::optional<Number> numberIn(const QString& text) {
  const std::string bytes = text.toStdString();
  Number number{};
  const auto read = std::from_chars(bytes.data(), bytes.data() + bytes.size(), number);
  if (read.ec != std::errc{} || read.ptr != bytes.data() + bytes.size()) {
    return std::nullopt;
  }
  return number;
}

}  // namespace

std::optional<qint64> storedInteger(const QVariant& stored) {
  if (isText(stored)) {
    return numberIn<qint64>(stored.toString());
  }
  if (!isWhole(stored) ||
      (stored.typeId() == QMetaType::ULongLong &&
       stored.toULongLong() > static_cast<quint64>(std::numeric_limits<qint64>::max()))) {
    return std::nullopt;
  }
  return stored.toLongLong();
}

std::optional<double> storedDouble(const QVariant& stored) {
  std::optional<double> number;
  if (isText(stored)) {
    number = numberIn<double>(stored.toString());
  } else if (isWhole(stored) || stored.typeId() == QMetaType::Double) {
    number = stored.toDouble();
  }
  return number && std::isfinite(*number) ? number : std::nullopt;
}

std::optional<bool> storedSwitch(const QVariant& stored) {
  if (stored.typeId() == QMetaType::Bool) {
    return stored.toBool();
  }
  if (!isText(stored) && !isWhole(stored)) {
    return std::nullopt;
  }
  const QString text = stored.toString().toLower();
  if (text == QLatin1String("true") || text == QLatin1String("1")) {
    return true;
  }
  if (text == QLatin1String("false") || text == QLatin1String("0")) {
    return false;
  }
  return std::nullopt;
}

std::optional<QString> storedText(const QVariant& stored) {
  return isText(stored) ? std::optional(stored.toString()) : std::nullopt;
}

QString storableText(double number) {
  return QString::fromStdString(astro::shortestText(number));
}

}  // namespace veyruna::model
