#pragma once

class QMenuBar;

namespace veyruna::ui {

/// Adds the Help menu: its two links and nothing else. A link without an address is disabled.
void addHelpMenu(QMenuBar& bar);

}  // namespace veyruna::ui
