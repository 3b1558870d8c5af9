#pragma once

#include <QWidget>

class QButtonGroup;
class QVBoxLayout;

namespace veyruna::ui {

class MonospacedTextView;

/// Two tables of which one is shown, chosen by two buttons side by side.
class TablePair : public QWidget {
 public:
  struct Texts {
    QString first;
    QString second;
    QString placeholder;
  };
  explicit TablePair(const Texts& titles, QWidget* parent = nullptr);

  void show(const QString& first, const QString& second);

  /// Adds a line below the table.
  void addFooter(QWidget* footer);

 private:
  MonospacedTextView* first_;
  MonospacedTextView* second_;
  QVBoxLayout* column_;
};

}  // namespace veyruna::ui
