// What stands above the map, what the pointer reads there and what a click picks.
#include <QFrame>
#include <QPushButton>
#include <QToolButton>

#include "tests/ui/map/shown_picker.h"

namespace veyruna::tests {
namespace {

/// Angles a click may be off: half a point of the map at zoom 1, in degrees.
constexpr double halfAPoint = 0.5 * 4316.0 / 800.0 / 52.15;

TEST_F(ShownPicker, TheControlsSayWhatTheyDo) {
  EXPECT_EQ(view->findChild<QToolButton*>(QStringLiteral("zoomOutButton"))->toolTip(),
            QStringLiteral("Zoom out (⌘−)"));
  EXPECT_EQ(view->findChild<QToolButton*>(QStringLiteral("zoomInButton"))->toolTip(),
            QStringLiteral("Zoom in (⌘+)"));
  EXPECT_EQ(view->findChild<QPushButton*>(QStringLiteral("resetButton"))->text(),
            QStringLiteral("Reset"));
  EXPECT_EQ(text("mapHint"), QStringLiteral("Click to pick · ⌥-scroll to zoom · drag to pan"));
  const QString explained = view->findChild<QLabel*>(QStringLiteral("mapHint"))->toolTip();
  EXPECT_TRUE(explained.contains(QStringLiteral("⌥ is the Alt key")));
  EXPECT_TRUE(explained.contains(QStringLiteral("⌘ is the Ctrl key")));
  EXPECT_TRUE(explained.contains(QStringLiteral("+ and −")));
  EXPECT_TRUE(explained.contains(QStringLiteral("Page Up and Page Down")));
  EXPECT_EQ(zoomText(), QStringLiteral("100%"));
}

TEST_F(ShownPicker, TheControlsStandInOneRowAboveADividerAndTheMap) {
  const auto leftOf = [this](const char* name) {
    return view->findChild<QWidget*>(QString::fromLatin1(name))->mapTo(view, QPoint()).x();
  };
  EXPECT_LT(leftOf("zoomOutButton"), leftOf("zoomReadout"));
  EXPECT_LT(leftOf("zoomReadout"), leftOf("zoomInButton"));
  EXPECT_LT(leftOf("zoomInButton"), leftOf("resetButton"));
  EXPECT_LT(leftOf("resetButton"), leftOf("mapHint"));
  const auto* const readout = view->findChild<QLabel*>(QStringLiteral("zoomReadout"));
  EXPECT_EQ(readout->width(), 56);
  EXPECT_EQ(readout->alignment(), Qt::AlignCenter);
  const auto frames = view->findChildren<QFrame*>(Qt::FindDirectChildrenOnly);
  const auto divider = std::ranges::find_if(
      frames, [](const QFrame* frame) { return frame->frameShape() == QFrame::HLine; });
  ASSERT_NE(divider, frames.end());
  EXPECT_EQ(area->y() - (*divider)->geometry().bottom() - 1, 12);
  // The view itself adds no margin: who shows it says what stands around it.
  EXPECT_EQ(area->x(), 0);
  EXPECT_EQ(area->geometry().bottom(), view->rect().bottom());
  EXPECT_EQ((*divider)->width(), view->width());
}

TEST_F(ShownPicker, ACrosshairIsOverTheMap) {
  EXPECT_EQ(area->cursor().shape(), Qt::CrossCursor);
}

TEST_F(ShownPicker, AClickLandsOnThePlaceUnderIt) {
  for (const auto& [latitude, longitude] :
       {std::pair{40.5, -20.9}, {11.5, 25.3}, {58.0, -40.0}, {1.0, 0.5}}) {
    const QPoint point = pointOf(latitude, longitude).toPoint();
    click(point);
    EXPECT_NEAR(model.manualLatDeg(), latitude, halfAPoint + 0.001);
    const double signedLongitude =
        model.longWest() ? -model.manualLongDeg() : model.manualLongDeg();
    EXPECT_NEAR(signedLongitude, longitude,
                halfAPoint / std::cos(latitude * 3.141592653589793 / 180.0) + 0.001);
    EXPECT_TRUE(model.latNorth());
    EXPECT_EQ(model.selectedCityID(), model::manualCityID());
  }
}

/// The same thousandth of a degree on every screen: these numbers hold no scale factor.
TEST_F(ShownPicker, AClickLandsOnTheSamePlaceAtEveryScaleFactor) {
  click({400, 300});
  EXPECT_EQ(model.manualLatDeg(), 32.674);
  EXPECT_EQ(model.manualLongDeg(), 8.872);
  EXPECT_FALSE(model.longWest());
  pointAt(besideMap());
  push("zoomInButton");
  push("zoomInButton");
  push("zoomInButton");
  click({137, 421});
  EXPECT_EQ(model.manualLatDeg(), 26.37);
  EXPECT_EQ(model.manualLongDeg(), 2.716);
  EXPECT_TRUE(model.longWest());
}

TEST_F(ShownPicker, SeveralClicksReplaceThePlaceAndCalculateNothing) {
  click(pointOf(10.0, 10.0).toPoint());
  const double first = model.manualLatDeg();
  click(pointOf(20.0, 10.0).toPoint());
  EXPECT_GT(model.manualLatDeg(), first + 9.0);
  QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {},
                     inWindow(pointOf(30.0, 10.0).toPoint()));
  EXPECT_NEAR(model.manualLatDeg(), 30.0, halfAPoint + 0.001);
  EXPECT_TRUE(view->isVisible());
  EXPECT_FALSE(model.isCalculating());
}

TEST_F(ShownPicker, AClickOutsideTheMappedAreaWritesNothing) {
  settings->groups.clear();
  click({400, 10});                                       // above the picture
  click(pointOf(59.0, -47.0).toPoint());                  // beyond the western edge of the sine
  click(pointOf(30.0, 46.5).toPoint());                   // beyond the eastern edge
  click((pointOf(60.0, 0.0) - QPointF(0, 3)).toPoint());  // north of sixty
  click((pointOf(0.0, 0.0) + QPointF(0, 3)).toPoint());   // south of the equator
  EXPECT_TRUE(settings->groups.empty());
  EXPECT_EQ(model.manualLatDeg(), 40.5);
}

TEST_F(ShownPicker, OnlyTheLeftButtonPicks) {
  settings->groups.clear();
  QTest::mouseClick(window.windowHandle(), Qt::RightButton, {}, inWindow({400, 300}));
  QTest::mouseClick(window.windowHandle(), Qt::MiddleButton, {}, inWindow({400, 300}));
  EXPECT_TRUE(settings->groups.empty());
}

TEST_F(ShownPicker, TheReadoutFollowsThePointerAndGoesWithIt) {
  EXPECT_FALSE(shows("mapReadout"));
  pointAt({400, 300});
  EXPECT_TRUE(shows("mapReadout"));
  EXPECT_EQ(text("mapReadout"), QStringLiteral("32.674° N   8.872° E"));
  ASSERT_TRUE(view->hover());
  pointAt({400, 10});
  EXPECT_FALSE(shows("mapReadout"));
  EXPECT_FALSE(view->hover());
  pointAt({400, 300});
  pointAt(besideMap());
  EXPECT_FALSE(shows("mapReadout"));
  EXPECT_FALSE(view->hover());
}

TEST_F(ShownPicker, TheReadoutAndThePickAgree) {
  for (const QPoint point : {QPoint(123, 456), QPoint(400, 300), QPoint(555, 222)}) {
    pointAt(point);
    click(point);
    const QString picked = QString::number(model.manualLatDeg(), 'f', 3) +
                           QStringLiteral("° N   ") +
                           QString::number(model.manualLongDeg(), 'f', 3) +
                           (model.longWest() ? QStringLiteral("° W") : QStringLiteral("° E"));
    EXPECT_EQ(text("mapReadout"), picked);
  }
}

TEST_F(ShownPicker, TheReadoutStandsTenPointsFromTheCorner) {
  pointAt({400, 300});
  const auto* const readout = view->findChild<QLabel*>(QStringLiteral("mapReadout"));
  EXPECT_EQ(readout->pos(), QPoint(10, 10));
  EXPECT_EQ(readout->contentsMargins(), QMargins(10, 6, 10, 6));
  const QFontMetricsF metrics(readout->font());
  EXPECT_EQ(metrics.horizontalAdvance(QStringLiteral("1111")),
            metrics.horizontalAdvance(QStringLiteral("MMMM")));
}

TEST_F(ShownPicker, TheReadoutIsNotInThePointersWay) {
  pointAt({400, 300});
  settings->groups.clear();
  view->findChild<QAbstractButton*>(QStringLiteral("zoomInButton"))->click();
  pointAt({30, 20});
  click({30, 20});  // on the read-out: picks what lies beneath
  EXPECT_FALSE(settings->groups.empty());
}

TEST_F(ShownPicker, WhenTheTabIsLeftThePointerIsForgotten) {
  pointAt({400, 300});
  view->hide();
  EXPECT_FALSE(view->hover());
  view->show();
  EXPECT_FALSE(shows("mapReadout"));
}

TEST_F(ShownPicker, ZoomAndPanOutliveTheTab) {
  push("zoomInButton");
  press({300, 300});
  pointAt({340, 310});
  release({340, 310});
  const QPointF pan = view->pan();
  view->hide();
  view->show();
  EXPECT_EQ(view->zoom(), 1.4);
  EXPECT_EQ(view->pan(), pan);
}

TEST_F(ShownPicker, AResizedViewKeepsTheMapCentred) {
  area->setFixedSize(400, 653);
  turnEventLoop();
  EXPECT_NEAR(view->mapLayout().displaySize.width(), 400.0, 1e-9);
  EXPECT_NEAR(view->mapLayout().origin.x(), 0.0, 1e-9);
}

TEST_F(ShownPicker, AViewWithoutSizeNeitherZoomsNorPicks) {
  area->setFixedSize(0, 0);
  turnEventLoop();
  push("zoomInButton");
  EXPECT_EQ(zoomText(), QStringLiteral("100%"));
  settings->groups.clear();
  QTest::mouseClick(area, Qt::LeftButton, {}, QPoint(0, 0));
  EXPECT_TRUE(settings->groups.empty());
}

TEST_F(ShownPicker, BeforeItIsShownTheMapHasNoSizeAndDoesNotZoom) {
  const ui::MapLocationPickerView unseen(model, &smallPicture, tasks.executor());
  EXPECT_EQ(unseen.mapLayout().displaySize, QSizeF(0.0, 0.0));
  unseen.findChild<QAbstractButton*>(QStringLiteral("zoomInButton"))->click();
  EXPECT_EQ(unseen.zoom(), 1.0);
}

TEST_F(ShownPicker, TheModelMayGoFirst) {
  auto own = std::make_unique<model::AstronomyModel>(surroundings());
  ui::MapLocationPickerView orphan(*own, &smallPicture, tasks.executor());
  orphan.resize(600, 600);
  orphan.show();
  turnEventLoop();
  own.reset();
  turnEventLoop();
  auto* const map = orphan.findChild<ui::MapArea*>();
  QTest::mouseClick(map, Qt::LeftButton, {}, map->rect().center());
  orphan.grab();
  EXPECT_EQ(orphan.zoom(), 1.0);
}

TEST_F(ShownPicker, ThePickerMayGoWhileItsPictureIsRead) {
  ASSERT_EQ(tasks.count(), 1U);
  delete view;
  tasks.runNext();
  turnEventLoop();
}

}  // namespace
}  // namespace veyruna::tests
