#pragma once

#include <QVariant>
#include <optional>

/// Stored settings come back as text, and a person may have edited them. Each function tells
/// whether the stored value is of its type; anything else, also a number out of the type's range or
/// not finite, is nothing.
namespace veyruna::model {

/// A whole number of 64 bits: 12 or "12", not 12.0.
std::optional<qint64> storedInteger(const QVariant& stored);

/// A finite number: 12, 12.5 or "12".
std::optional<double> storedDouble(const QVariant& stored);

/// true, false, 1 or 0, as text in any letter case.
std::optional<bool> storedSwitch(const QVariant& stored);

/// Text.
std::optional<QString> storedText(const QVariant& stored);

/// What a double is stored as: the shortest text that reads back as the same double, also −0.
QString storableText(double number);

}  // namespace veyruna::model
