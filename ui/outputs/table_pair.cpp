#include "ui/outputs/table_pair.h"

#include <QHBoxLayout>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "ui/controls/segmented_picker.h"
#include "ui/outputs/monospaced_text_view.h"

namespace veyruna::ui {

TablePair::TablePair(const Texts& titles, QWidget* parent)
    : QWidget(parent),
      first_(new MonospacedTextView(titles.first, titles.placeholder)),
      second_(new MonospacedTextView(titles.second, titles.placeholder)),
      column_(new QVBoxLayout(this)) {
  auto* const tables = new QStackedWidget;
  tables->addWidget(first_);
  tables->addWidget(second_);

  auto* const choice =
      new SegmentedPicker("show", {{titles.first, titles.first}, {titles.second, titles.second}});
  auto* const row = new QHBoxLayout;
  row->addStretch();
  row->addWidget(choice);
  row->addStretch();
  connect(choice, &SegmentedPicker::picked, tables, &QStackedWidget::setCurrentIndex);

  column_->addLayout(row);
  column_->addWidget(tables, 1);
}

void TablePair::show(const QString& first, const QString& second) {
  first_->show(first);
  second_->show(second);
}

void TablePair::addFooter(QWidget* footer) {
  column_->addWidget(footer);
}

}  // namespace veyruna::ui
