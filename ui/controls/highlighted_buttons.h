#pragma once

#include <QPushButton>
#include <QStyleOptionButton>
#include <QStyleOptionToolButton>
#include <QStylePainter>
#include <QToolButton>

/// Buttons of which one is chosen. The chosen one is drawn in the palette's highlight: pressed in
/// alone it is hard to tell on a dark desktop.
namespace veyruna::ui {

/// Gives what is drawn the highlight's colours where it is chosen.
inline void highlightChosen(QStyleOption& option, bool isChosen) {
  if (isChosen) {
    const QPalette colors = option.palette;
    option.palette.setColor(QPalette::Button, colors.color(QPalette::Highlight));
    option.palette.setColor(QPalette::ButtonText, colors.color(QPalette::HighlightedText));
  }
}

/// One segment of a choice.
class SegmentButton final : public QPushButton {
 public:
  using QPushButton::QPushButton;

  /// As wide as its title asks, not as wide as a button that stands alone.
  [[nodiscard]] QSize sizeHint() const override {
    const int padding = 2 * fontMetrics().averageCharWidth() + fontMetrics().height();
    return {fontMetrics().horizontalAdvance(text()) + padding, QPushButton::sizeHint().height()};
  }
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    highlightChosen(option, isChecked());
    painter.drawControl(QStyle::CE_PushButton, option);
  }
};

/// One tab of the toolbar.
class TabButton final : public QToolButton {
 public:
  using QToolButton::QToolButton;

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    highlightChosen(option, isChecked());
    if (isChecked()) {
      // The icon in the ink of what is highlighted.
      option.icon = QIcon(icon().pixmap(option.iconSize, devicePixelRatio(), QIcon::Selected));
    }
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
  }
};

}  // namespace veyruna::ui
