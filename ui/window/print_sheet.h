#pragma once

#include <QDialog>

class QComboBox;
class QSpinBox;

namespace veyruna::ui {

/// Asks on which printer and how often, over the window. Deletes itself when it closes.
class PrintSheet final : public QDialog {
  Q_OBJECT

 public:
  /// `printers` is not empty; `usual` is offered first where it is one of them.
  PrintSheet(const QStringList& printers, const QString& usual, QWidget* window);

  [[nodiscard]] QString printer() const;
  [[nodiscard]] int copies() const;

 private:
  QComboBox* printer_;
  QSpinBox* copies_;
};

}  // namespace veyruna::ui
