#include "ui/window/help_menu_view.h"

#include <QDesktopServices>

#include "ui/window/product.h"

namespace veyruna::ui {

HelpMenuView::HelpMenuView(QWidget* parent) : QMenu(tr("&Help"), parent) {
  const Product product = readProduct();
  addLink(tr("Veyruna Astro &Help"), product.documentation)
      ->setShortcut(QKeySequence::HelpContents);
  addLink(tr("&Developer Website"), product.developerWebsite);
}

QAction* HelpMenuView::addLink(const QString& title, const QUrl& address) {
  QAction* const action = addAction(title);
  action->setEnabled(address.isValid());
  connect(action, &QAction::triggered, action, [address] { QDesktopServices::openUrl(address); });
  return action;
}

}  // namespace veyruna::ui
