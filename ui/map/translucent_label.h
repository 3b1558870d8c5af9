#pragma once

#include <QLabel>
#include <QPixmap>

namespace veyruna::ui {

/// A label that lies over a picture: on a rounded, translucent ground, and not there for the
/// pointer. As large as its text; hidden while it has none. Drawn once for its text and copied from
/// then on, so that the picture's frames cost no more for it.
class TranslucentLabel final : public QLabel {
 public:
  explicit TranslucentLabel(QWidget* parent);

  void showText(const QString& text);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  [[nodiscard]] QPixmap drawn() const;

  QPixmap drawn_;  ///< null: to be drawn anew
};

}  // namespace veyruna::ui
