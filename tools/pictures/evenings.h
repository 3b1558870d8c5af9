#pragma once

#include <QRectF>

#include "astro/calendar.h"
#include "astro/observer.h"

namespace veyruna::pictures {

/// When and where a picture looks at the sky; the hour is local.
struct Evening {
  astro::CalendarReading reading;
  double latitude;   ///< radians
  double longitude;  ///< radians

  [[nodiscard]] astro::Observer observer() const;
};

/// The evening of this name in tools/pictures/moments; a name that is not there, or is said in
/// other words than those of the command, is a broken invariant or a UsageError.
Evening eveningOf(const char* name);

/// The part of a chart (its own units) of this name, from the same file.
QRectF partOf(const char* name);

}  // namespace veyruna::pictures
