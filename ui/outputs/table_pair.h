#pragma once

#include <QWidget>

#include "export/output_tab.h"

class QVBoxLayout;

namespace veyruna::ui {

class MonospacedTextView;

/// Two tables of which one is shown, chosen by two buttons side by side.
class TablePair : public QWidget {
 public:
  /// The tab saves two tables, which are called here as there; the placeholder stands for them
  /// until there are any.
  TablePair(exports::OutputTab tab, const QString& placeholder, QWidget* parent = nullptr);

  void show(const QString& first, const QString& second);

  /// Adds a line below the table.
  void addFooter(QWidget* footer);

 private:
  MonospacedTextView* first_;
  MonospacedTextView* second_;
  QVBoxLayout* column_;
};

}  // namespace veyruna::ui
