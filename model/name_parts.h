#pragma once

#include <QString>

#include "astro/calendar.h"

/// What the names of files are made of that are offered to a person.
namespace veyruna::model {

/// The most bytes a file system takes for one name.
inline constexpr qsizetype longestNameBytes = 255;

/// "12.50°W". An infinite number of degrees is shown as such.
QString coordinateInName(double degrees, char16_t letter);

/// "720-03-15 06-30". Minutes are cut, not rounded. Any reading has a text, also one that no
/// calendar has.
QString momentInName(const astro::CalendarReading& reading);

/// The text with "-" for every "/" and control character.
QString withoutSeparators(QString text);

/// As many of the text's characters, as a person counts them, as fit into so many bytes of UTF-8.
QString fitted(const QString& text, qsizetype bytes);

}  // namespace veyruna::model
