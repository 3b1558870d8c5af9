#include "ui/outputs/table_pair.h"

#include <QHBoxLayout>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "astro/invariant.h"
#include "ui/controls/segmented_picker.h"
#include "ui/outputs/monospaced_text_view.h"

namespace veyruna::ui {

TablePair::TablePair(exports::OutputTab tab, const QString& placeholder, QWidget* parent)
    : QWidget(parent), column_(new QVBoxLayout(this)) {
  const auto& sections = exports::entryOf(tab).sections;
  astro::requireInvariant(sections.size() == 2, "a pair of tables is two");
  const QString first = exports::heading(sections[0].document);
  const QString second = exports::heading(sections[1].document);
  first_ = new MonospacedTextView(first, placeholder);
  second_ = new MonospacedTextView(second, placeholder);
  auto* const tables = new QStackedWidget;
  tables->addWidget(first_);
  tables->addWidget(second_);

  auto* const choice = new SegmentedPicker("show", {{first, first}, {second, second}});
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
