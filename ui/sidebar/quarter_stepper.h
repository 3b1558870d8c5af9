#pragma once

#include <QWidget>

class QToolButton;

namespace veyruna::ui {

/// Two arrows that go a quarter of an hour earlier and later; the keys up and down do the same
/// while either has the focus.
class QuarterStepper final : public QWidget {
  Q_OBJECT

 public:
  explicit QuarterStepper(QWidget* parent = nullptr);

  /// Shows which ways there are from this hour; reports nothing.
  void show(double hour);

 Q_SIGNALS:
  /// The person went so many quarters on.
  void stepped(int quarters);

 protected:
  /// Hands the focus to the arrow that can be used.
  void focusInEvent(QFocusEvent* event) override;
  /// Keys of the two buttons, which on their own take up and down for moving the focus.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QToolButton* makeButton(Qt::ArrowType arrow, const char* name, const QString& spoken,
                          int quarters);

  QToolButton* earlier_;
  QToolButton* later_;
};

}  // namespace veyruna::ui
