#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include "tests/model/fakes.h"
#include "tests/support/patience.h"
#include "ui/map/map_area.h"
#include "ui/map/map_location_picker_view.h"

namespace veyruna::tests {

/// A picture in the map's proportions, small; its pixels tell where they are.
inline QImage smallPicture() {
  QImage picture(863, 653, QImage::Format_RGB32);
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      picture.setPixel(x, y, qRgb(x * 255 / 862, y * 255 / 652, 128));
    }
  }
  return picture;
}

/// Counts the wheels that reach it.
class WheelCounter final : public QWidget {
 public:
  int wheels = 0;

 protected:
  void wheelEvent(QWheelEvent* event) override {
    ++wheels;
    event->accept();
  }
};

/// The picker in a window beside another control, its map area 800 × 653 points: the picture, as
/// wide as the area, is fitted to the width. Pointer and keys come in as the platform delivers
/// them.
struct ShownPicker : testing::Test, FakeModel {
  static constexpr double aspect = 4316.0 / 3266.0;
  static constexpr QSize areaSize{800, 653};

  QWidget window;
  WheelCounter* beside = new WheelCounter;
  ui::MapLocationPickerView* view =
      new ui::MapLocationPickerView(model, &smallPicture, tasks.executor());
  ui::MapArea* area = view->findChild<ui::MapArea*>();

  ShownPicker() {
    auto* const row = new QHBoxLayout(&window);
    row->addWidget(view);
    row->addWidget(beside);
    beside->setFixedWidth(100);
    area->setFixedSize(areaSize);
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window, tests::patienceMilliseconds));
    pointAt(besideMap());
  }

  [[nodiscard]] QPoint besideMap() const {
    return beside->mapTo(&window, QPoint(50, 50)) - area->mapTo(&window, QPoint());
  }

  // The pointer, in the map area's points, through the window.
  [[nodiscard]] QPoint inWindow(QPoint point) const { return area->mapTo(&window, point); }
  void pointAt(QPoint point) {
    QTest::mouseMove(window.windowHandle(), inWindow(point));
    turnEventLoop();
  }
  void press(QPoint point) {
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, inWindow(point));
  }
  void release(QPoint point) {
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, inWindow(point));
  }
  void click(QPoint point) {
    press(point);
    release(point);
  }

  /// A wheel over a widget of the window; true where somebody took it.
  static bool turnWheel(QObject* target, Qt::KeyboardModifiers modifiers, QPoint angle,
                        QPoint pixels = {}) {
    QWheelEvent wheel(QPointF(5, 5), QPointF(5, 5), pixels, angle, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    wheel.ignore();
    QCoreApplication::sendEvent(target, &wheel);
    return wheel.isAccepted();
  }

  /// Where a place lies at a zoom and pan, worked out here: 52.15 pixels to a degree of latitude,
  /// 470/9 to one of longitude at the equator.
  static QPointF pointOf(double latitude, double longitude, double zoom = 1.0, QPointF pan = {}) {
    const double width = 800.0 * zoom;
    const double scale = width / 4316.0;
    const double cosine = std::cos(latitude * 3.141592653589793 / 180.0);
    const QPointF corner((800.0 - width) / 2.0, (653.0 - width / aspect) / 2.0);
    return corner + pan +
           QPointF((1768.0 + longitude * 470.0 / 9.0 * cosine) * scale,
                   (3194.0 - latitude * 52.15) * scale);
  }

  [[nodiscard]] QString text(const char* label) const {
    return view->findChild<QLabel*>(QString::fromLatin1(label))->text();
  }
  [[nodiscard]] bool shows(const char* label) const {
    return view->findChild<QLabel*>(QString::fromLatin1(label))->isVisible();
  }
  [[nodiscard]] QString zoomText() const { return text("zoomReadout"); }
  void push(const char* button) const {
    view->findChild<QAbstractButton*>(QString::fromLatin1(button))->click();
  }
};

/// The steps a person sees on the way in: 1.4 each, cut to whole percent, to the end at 12.
inline const QStringList& zoomTable() {
  static const QStringList table = {
      QStringLiteral("140%"),  QStringLiteral("195%"),  QStringLiteral("274%"),
      QStringLiteral("384%"),  QStringLiteral("537%"),  QStringLiteral("752%"),
      QStringLiteral("1054%"), QStringLiteral("1200%"), QStringLiteral("1200%")};
  return table;
}

}  // namespace veyruna::tests
