#pragma once

#include <QString>

namespace veyruna::exports {

/// A page of HTML that holds one chart, stretched to the page's size. The SVG stands in it as it
/// is.
QString chartPage(const QString& svg);

}  // namespace veyruna::exports
