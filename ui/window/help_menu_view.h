#pragma once

#include <QMenu>

namespace veyruna::ui {

/// The Help menu: its two links and nothing else. A link without an address is disabled.
class HelpMenuView final : public QMenu {
 public:
  explicit HelpMenuView(QWidget* parent);

 private:
  QAction* addLink(const QString& title, const QUrl& address);
};

}  // namespace veyruna::ui
