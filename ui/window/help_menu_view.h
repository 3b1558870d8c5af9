#pragma once

#include <QMenu>

#include "ui/window/product.h"

namespace veyruna::ui {

/// The Help menu: its two links and nothing else. A link without an address is
/// disabled and says why.
class HelpMenuView final : public QMenu {
 public:
  explicit HelpMenuView(QWidget* parent);

 private:
  void addLink(const QString& label, const ProductLink& link);
};

}  // namespace veyruna::ui
