// Enlarging and moving a chart by every way a person has.
#include <QNativeGestureEvent>
#include <QPointingDevice>
#include <gtest/gtest.h>

#include "drawing/svg_reader.h"
#include "tests/support/picture_difference.h"
#include "tests/ui/charts/shown_chart.h"

namespace veyruna::ui {
namespace {

using documents::Document;
using tests::ShownChart;

struct Zooming : testing::Test, ShownChart {
  Zooming() : ShownChart(tests::tenSkies()[1]) {}

  [[nodiscard]] QPointF chartPoint(QPointF position) const {
    return chart->chartToView().inverted().map(position);
  }
  [[nodiscard]] double zoom() const { return chart->framing().zoom; }

  void pinch(Qt::NativeGestureType type, double value, QPointF position) {
    QNativeGestureEvent event(type, QPointingDevice::primaryPointingDevice(), 2, position, position,
                              chart->mapToGlobal(position), value, QPointF());
    QCoreApplication::sendEvent(chart.get(), &event);
  }
  void doubleClick(charts::PagePoint point) {
    QTest::mouseDClick(chart.get(), Qt::LeftButton, {}, at(point).toPoint());
  }
};

TEST_F(Zooming, CtrlAndTheWheelEnlargeAboutThePointer) {
  const QPointF pointer(700.0, 200.0);
  const QPointF before = chartPoint(pointer);
  wheel(pointer, 3, Qt::ControlModifier);
  EXPECT_NEAR(zoom(), 1.25 * 1.25 * 1.25, 1e-9);
  EXPECT_LT((chartPoint(pointer) - before).manhattanLength(), 1e-6);
  wheel(pointer, 100, Qt::ControlModifier);
  EXPECT_EQ(zoom(), 16.0);
  EXPECT_LT((chartPoint(pointer) - before).manhattanLength(), 1e-6);
  wheel(pointer, -200, Qt::ControlModifier);
  EXPECT_EQ(chart->framing(), ChartFraming());
}

TEST_F(Zooming, AWheelAloneDoesNothing) {
  for (const Qt::KeyboardModifiers modifiers :
       {Qt::KeyboardModifiers(Qt::NoModifier), Qt::KeyboardModifiers(Qt::AltModifier),
        Qt::KeyboardModifiers(Qt::ShiftModifier)}) {
    wheel({700.0, 200.0}, 3, modifiers);
    EXPECT_EQ(chart->framing(), ChartFraming());
  }
}

TEST_F(Zooming, APinchEnlargesAboutTheFingers) {
  const QPointF fingers(300.0, 400.0);
  const QPointF before = chartPoint(fingers);
  pinch(Qt::BeginNativeGesture, 0.0, fingers);
  pinch(Qt::ZoomNativeGesture, 0.5, fingers);
  pinch(Qt::ZoomNativeGesture, 0.5, fingers);
  pinch(Qt::EndNativeGesture, 0.0, fingers);
  EXPECT_NEAR(zoom(), 2.25, 1e-9);
  EXPECT_LT((chartPoint(fingers) - before).manhattanLength(), 1e-6);
  pinch(Qt::ZoomNativeGesture, -1.0, fingers);
  pinch(Qt::ZoomNativeGesture, -7.0, fingers);
  EXPECT_NEAR(zoom(), 2.25, 1e-9) << "what cannot come from fingers";
}

TEST_F(Zooming, TheKeysPlusMinusAndZero) {
  press(Qt::Key_Plus);
  EXPECT_NEAR(zoom(), 1.5, 1e-9);
  QTest::keyClick(chart.get(), Qt::Key_Plus, Qt::KeypadModifier);
  EXPECT_NEAR(zoom(), 2.25, 1e-9);
  press(Qt::Key_Minus);
  EXPECT_NEAR(zoom(), 1.5, 1e-9);
  for (int i = 0; i < 10; ++i) {
    press(Qt::Key_Plus);
  }
  EXPECT_EQ(zoom(), 16.0);
  press(Qt::Key_0);
  EXPECT_EQ(chart->framing(), ChartFraming());
  QTest::keyClick(chart.get(), Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(zoom(), 1.0);
}

TEST_F(Zooming, ADragMovesTheEnlargedChartAsAHandMovesPaper) {
  const auto drag = [this](QPoint from, QPoint to) {
    QTest::mousePress(chart.get(), Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, QPointF(to), chart->mapToGlobal(QPointF(to)),
                     Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(chart.get(), &move);
    QTest::mouseRelease(chart.get(), Qt::LeftButton, {}, to);
  };
  drag({400, 300}, {500, 350});
  EXPECT_EQ(chart->framing(), ChartFraming()) << "there is nothing beyond";
  wheel({480.0, 320.0}, 5, Qt::ControlModifier);
  const QPointF held = chartPoint({400.0, 300.0});
  drag({400, 300}, {460, 270});
  EXPECT_LT((chartPoint({460.0, 270.0}) - held).manhattanLength(), 1e-6);
  EXPECT_EQ(selection.body(), std::nullopt) << "a drag is no click";
}

TEST_F(Zooming, ADoubleClickFitsThePanelOrTheWheelAndTheNextGoesBack) {
  wheel({100.0, 100.0}, 1, Qt::ControlModifier);
  const ChartFraming before = chart->framing();
  doubleClick({450.0, 150.0});
  EXPECT_GT(zoom(), 1.05);
  const QRectF view(chart->rect());
  EXPECT_TRUE(view.contains(at({396.0, 0.0})) && view.contains(at({700.0, 360.0})));
  doubleClick({450.0, 150.0});
  EXPECT_EQ(chart->framing(), before);
  doubleClick({100.0, 180.0});
  EXPECT_TRUE(view.adjusted(-1, -1, 1, 1).contains(at({0.0, 180.0})));
  EXPECT_TRUE(view.adjusted(-1, -1, 1, 1).contains(at({360.0, 180.0})));
  EXPECT_NEAR(at({180.0, -10.0}).y(), 0.0, 1e-6);
  // One that has been moved since is fitted anew.
  press(Qt::Key_Plus);
  const ChartFraming moved = chart->framing();
  doubleClick({180.0, 180.0});
  EXPECT_NEAR(at({180.0, -10.0}).y(), 0.0, 1e-6);
  doubleClick({180.0, 180.0});
  EXPECT_EQ(chart->framing(), moved);
}

TEST_F(Zooming, TheFramingStaysFromChartToChartAndFromSizeToSize) {
  wheel({700.0, 200.0}, 8, Qt::ControlModifier);
  const ChartFraming framing = chart->framing();
  look({.baseTime = 5.0, .latitude = 1.0, .longitude = 1.0}, Document::horoscope);
  EXPECT_EQ(chart->framing(), framing);
  chart->resize(700, 500);
  chart->resize(960, 640);
  EXPECT_EQ(chart->framing(), framing);
  chart->hide();
  static_cast<QWidget&>(*chart).show();
  EXPECT_EQ(chart->framing(), framing);
}

TEST_F(Zooming, WhatIsEnlargedIsDrawnInThePixelsOfTheScreen) {
  const double ratio = chart->devicePixelRatioF();
  leave();
  chart->setFraming({4.0, {0.5, 0.5}});
  QImage seen = chart->grab().toImage();
  seen.setDevicePixelRatio(1.0);
  QImage whole((QSizeF(chart->size()) * ratio * 4.0).toSize(), QImage::Format_RGB32);
  whole.fill(Qt::white);
  QPainter painter(&whole);
  drawing::PicturePainter().paint(painter, drawing::readSvg(chart->svg().toUtf8()), whole.rect(),
                                  drawing::Medium::pixels);
  painter.end();
  const QRect middle((whole.width() - seen.width()) / 2, (whole.height() - seen.height()) / 2,
                     seen.width(), seen.height());
  // But for the frame that shows the focus.
  const QRect inside = seen.rect().adjusted(6, 6, -6, -6);
  EXPECT_LT(tests::differenceOf(seen.copy(inside), whole.copy(middle).copy(inside), 4).different,
            0.0001);
}

}  // namespace
}  // namespace veyruna::ui
