#pragma once

#include <QLabel>

class QTextLayout;

namespace veyruna::ui {

/// A plain text in as many lines as its width asks for. A word that is longer than a line is broken
/// where the line ends, so that no name, however long, makes a window wider; the text itself stays
/// as it is.
class WrappedLabel : public QLabel {
 public:
  explicit WrappedLabel(const QString& text = QString(), QWidget* parent = nullptr);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;
  [[nodiscard]] int heightForWidth(int width) const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  /// Lays the text out in lines of this width; returns their height.
  int layOut(QTextLayout& lines, int width) const;
};

}  // namespace veyruna::ui
