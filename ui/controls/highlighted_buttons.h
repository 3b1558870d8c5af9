#pragma once

#include <QPushButton>
#include <QStyleOptionButton>
#include <QStyleOptionToolButton>
#include <QStylePainter>
#include <QToolButton>
#include <optional>
#include <tuple>

#include "ui/controls/shades.h"

/// Buttons of which one is chosen. The chosen one is drawn in the palette's highlight: pressed in
/// alone it is hard to tell on a dark desktop.
namespace veyruna::ui {

/// The palette that the chosen one is drawn in. Kept while the plain one stays the same: for every
/// new palette a style keeps anew what it has drawn.
class ChosenPalette {
 public:
  const QPalette& of(const QPalette& plain) {
    if (!plainKey_ || *plainKey_ != plain.cacheKey()) {
      plainKey_ = plain.cacheKey();
      chosen_ = plain;
      chosen_.setColor(QPalette::Button, chosenGround(plain));
      chosen_.setColor(QPalette::ButtonText, plain.color(QPalette::HighlightedText));
    }
    return chosen_;
  }

 private:
  std::optional<qint64> plainKey_;
  QPalette chosen_;
};

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
    if (isChecked()) {
      option.palette = chosen_.of(option.palette);
    }
    painter.drawControl(QStyle::CE_PushButton, option);
  }

 private:
  ChosenPalette chosen_;
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
    if (isChecked()) {
      option.palette = chosen_.of(option.palette);
      option.icon = chosenIcon(option.iconSize);
    }
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
  }

 private:
  /// The icon in the ink of what is highlighted; kept, since Qt keeps what each icon has drawn.
  const QIcon& chosenIcon(QSize size) {
    const IconKey key(icon().cacheKey(), size, devicePixelRatioF());
    if (key != iconKey_) {
      iconKey_ = key;
      chosenIcon_ = QIcon(icon().pixmap(size, devicePixelRatioF(), QIcon::Selected));
    }
    return chosenIcon_;
  }

  using IconKey = std::tuple<qint64, QSize, qreal>;
  ChosenPalette chosen_;
  IconKey iconKey_;
  QIcon chosenIcon_;
};

}  // namespace veyruna::ui
