#include "ui/tables_view.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "ui/monospaced_text_view.h"
#include "ui/named.h"

namespace veyruna::ui {

TablesView::TablesView(const Texts& titles, QWidget* parent)
    : QWidget(parent),
      first_(new MonospacedTextView(titles.first, titles.placeholder)),
      second_(new MonospacedTextView(titles.second, titles.placeholder)),
      column_(new QVBoxLayout(this)) {
  auto* const tables = new QStackedWidget;
  tables->addWidget(first_);
  tables->addWidget(second_);

  auto* const choice = new QButtonGroup(this);
  auto* const row = new QHBoxLayout;
  row->addStretch();
  for (const QString& title : {titles.first, titles.second}) {
    auto* const button = named(new QPushButton(title), "", title);
    button->setObjectName(QStringLiteral("show") + title);
    button->setCheckable(true);
    choice->addButton(button, static_cast<int>(choice->buttons().size()));
    row->addWidget(button);
  }
  row->addStretch();
  choice->button(0)->setChecked(true);
  connect(choice, &QButtonGroup::idClicked, tables, &QStackedWidget::setCurrentIndex);

  column_->addLayout(row);
  column_->addWidget(tables, 1);
}

void TablesView::show(const QString& first, const QString& second) {
  first_->show(first);
  second_->show(second);
}

void TablesView::addFooter(QWidget* footer) {
  column_->addWidget(footer);
}

}  // namespace veyruna::ui
