#include "ui/help_menu.h"

#include <QDesktopServices>
#include <QMenuBar>

#include "ui/product.h"

namespace veyruna::ui {

namespace {

QAction* addLink(QMenu& menu, const QString& title, const QUrl& address) {
  QAction* const action = menu.addAction(title);
  action->setEnabled(address.isValid());
  QObject::connect(action, &QAction::triggered, action,
                   [address] { QDesktopServices::openUrl(address); });
  return action;
}

}  // namespace

void addHelpMenu(QMenuBar& bar) {
  const Product product = readProduct();
  QMenu* const menu = bar.addMenu(QMenuBar::tr("&Help"));
  addLink(*menu, QMenuBar::tr("Veyruna Astro &Help"), product.documentation)
      ->setShortcut(QKeySequence::HelpContents);
  addLink(*menu, QMenuBar::tr("&Developer Website"), product.developerWebsite);
}

}  // namespace veyruna::ui
