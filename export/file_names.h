#pragma once

#include <QString>
#include <QStringView>

#include "model/astronomy_model.h"

namespace veyruna::exports {

/// The place of the model's inputs: the selected place's name as it was saved, or the manual fields
/// as "45.00°N", `between`, "12.50°W". A selected place that is gone counts as the fixed entry
/// "Manual", as it does where it is calculated.
QString inputPlaceText(const model::AstronomyModel& model, QStringView between);

/// The name a file is first offered under: prefix, place, date and time of the model's inputs, as
/// in "Sun & Moon - 45.00°N 12.50°W - 720-03-15 06-30.pdf". Minutes are cut, not rounded. In the
/// place
/// "/" and control characters become "-"; it loses its last characters where the name would be
/// longer than model::longestNameBytes in UTF-8. Any stored input gives a name; prefix and
/// extension are taken as they are and are to be short.
QString proposedFileName(const model::AstronomyModel& model, QStringView prefix,
                         QStringView extension);

}  // namespace veyruna::exports
