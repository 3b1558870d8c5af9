#pragma once

#include <QLabel>

namespace veyruna::ui {

/// A label that lies over a picture: on a rounded, translucent ground, and not there for the
/// pointer. As large as its text; hidden while it has none.
class TranslucentLabel final : public QLabel {
 public:
  explicit TranslucentLabel(QWidget* parent);

  void showText(const QString& text);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace veyruna::ui
