#include "ui/sidebar/calculate_button.h"

#include <QEvent>
#include <QPainter>
#include <QProgressBar>
#include <QTimer>
#include <chrono>

#include "ui/controls/focus_ring.h"
#include "ui/controls/icons.h"
#include "ui/controls/named.h"

namespace veyruna::ui {

namespace {

constexpr double progressShare = 0.7;  // of the height of the word
constexpr int gap = 6;

/// A small wheel that turns while it is shown.
class TurningWheel final : public QProgressBar {
 public:
  TurningWheel() {
    using std::chrono_literals::operator""ms;
    setRange(0, 0);
    setTextVisible(false);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    turning_.setInterval(80ms);
    connect(&turning_, &QTimer::timeout, this, [this] {
      spoke_ = (spoke_ + 1) % spokes;
      update();
    });
  }

 protected:
  void showEvent(QShowEvent* event) override {
    QProgressBar::showEvent(event);
    turning_.start();
  }
  void hideEvent(QHideEvent* event) override {
    QProgressBar::hideEvent(event);
    turning_.stop();
  }
  void paintEvent(QPaintEvent* /*event*/) override {
    constexpr double thickness = 0.12;  // of the wheel
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    const double radius = std::min(width(), height()) / 2.0;
    QColor ink = palette().color(QPalette::ButtonText);
    for (int spoke = 0; spoke < spokes; ++spoke) {
      const int age = (spoke_ - spoke + spokes) % spokes;
      ink.setAlphaF(1.0F - 0.85F * static_cast<float>(age) / static_cast<float>(spokes - 1));
      painter.setPen(QPen(ink, 2.0 * radius * thickness, Qt::SolidLine, Qt::RoundCap));
      painter.save();
      painter.rotate(360.0 * spoke / spokes);
      painter.drawLine(QPointF(0.0, -0.5 * radius), QPointF(0.0, -(1.0 - thickness) * radius));
      painter.restore();
    }
  }

 private:
  static constexpr int spokes = 8;
  QTimer turning_{this};
  int spoke_ = 0;
};

}  // namespace

CalculateButton::CalculateButton(QWidget* parent)
    : QPushButton(ui::icon("", "calculate"), tr("&Calculate"), parent),
      progress_(named(new TurningWheel, "progress", tr("Calculating"))) {
  progress_->setParent(this);
  progress_->hide();
  setDefault(true);
}

void CalculateButton::showProgress(bool isCalculating) {
  progress_->setVisible(isCalculating);
}

QSize CalculateButton::sizeHint() const {
  // As much room on the other side, since the word stands in the middle.
  return QPushButton::sizeHint() + QSize(2 * (gap + progressSize()), 0);
}

void CalculateButton::resizeEvent(QResizeEvent* event) {
  QPushButton::resizeEvent(event);
  placeProgress();
}

void CalculateButton::changeEvent(QEvent* event) {
  QPushButton::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
    placeProgress();
  }
}

void CalculateButton::paintEvent(QPaintEvent* event) {
  QPushButton::paintEvent(event);
  QPainter painter(this);
  paintFocusRing(painter, *this, palette().color(QPalette::ButtonText));
}

int CalculateButton::progressSize() const {
  return qRound(progressShare * fontMetrics().height());
}

int CalculateButton::contentWidth() const {
  constexpr int betweenIconAndWord = 4;  // as QStyle draws it
  return iconSize().width() + betweenIconAndWord +
         fontMetrics().size(Qt::TextShowMnemonic, text()).width();
}

void CalculateButton::placeProgress() {
  if (progress_ != nullptr) {
    const int size = progressSize();
    progress_->setGeometry((width() + contentWidth()) / 2 + gap, (height() - size) / 2, size, size);
  }
}

}  // namespace veyruna::ui
