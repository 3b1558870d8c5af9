#pragma once

#include <QString>

#include "export/report.h"

namespace veyruna::exports {

/// The text with "&", "<" and ">" written for HTML, in this order.
QString escaped(QString text);

/// A report as a page of HTML that needs no other file. Its texts come unescaped.
QString reportDocument(const Report& report);

}  // namespace veyruna::exports
