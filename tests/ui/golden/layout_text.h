#pragma once

#include <QWidget>
#include <string>

class QMenuBar;

namespace veyruna::tests {

/// What a person meets of a window or a part of one, a line for each visible widget, indented below
/// what holds it: class and name, place and size, the size it asks for, and what of its properties,
/// type and colours is not as usual. Paths, version and build number of this machine are left out.
std::string layoutText(const QWidget& part);

/// The same of menus: a line for each entry with its key.
std::string menuText(const QMenuBar& menus);

/// The names of what Tab leads to, in that order.
std::string tabOrderText(const QWidget& window);

}  // namespace veyruna::tests
