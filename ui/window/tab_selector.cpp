#include "ui/window/tab_selector.h"

#include <QActionGroup>
#include <QHBoxLayout>
#include <array>

#include "ui/controls/highlighted_buttons.h"
#include "ui/controls/icons.h"
#include "ui/controls/named.h"

namespace veyruna::ui {

TabSelector::TabSelector(QWidget* parent)
    : QToolBar(tr("Tabs"), parent), actions_(new QActionGroup(this)) {
  setObjectName(QStringLiteral("tabSelector"));
  setMovable(false);
  setFloatable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  toggleViewAction()->setEnabled(false);
  toggleViewAction()->setVisible(false);

  // One widget holds all buttons, and is never narrower than they are: none can fold away.
  auto* const buttons = new QWidget;
  auto* const row = new QHBoxLayout(buttons);
  row->setContentsMargins({});
  row->addStretch();
  constexpr std::array<const char*, exports::outputTabs.size()> icons = {
      "star_map", "horoscope", "planets", "sun_moon", "positions", "location"};
  int number = 1;
  for (const exports::OutputTab tab : exports::outputTabs) {
    const QString title = exports::title(tab);
    auto* const action = new QAction(QString(title).replace(QLatin1Char('&'), QLatin1String("&&")));
    action->setParent(this);
    action->setIcon(icon("", icons.at(static_cast<std::size_t>(number - 1))));
    action->setCheckable(true);
    action->setShortcut(QKeySequence(QStringLiteral("Ctrl+%1").arg(number)));
    action->setToolTip(
        tr("%1 (%2)").arg(title, action->shortcut().toString(QKeySequence::NativeText)));
    actions_->addAction(action);
    auto* const button = named(new TabButton, "", tr("Show the tab %1").arg(title));
    button->setObjectName(QStringLiteral("tab%1").arg(number));
    button->setDefaultAction(action);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setFocusPolicy(Qt::StrongFocus);
    row->addWidget(button);
    connect(action, &QAction::triggered, this, [this, tab] { Q_EMIT chosen(tab); });
    ++number;
  }
  row->addStretch();
  buttons->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  addWidget(buttons);
}

void TabSelector::setTab(exports::OutputTab tab) {
  actions_->actions().at(static_cast<int>(tab))->setChecked(true);
}

}  // namespace veyruna::ui
