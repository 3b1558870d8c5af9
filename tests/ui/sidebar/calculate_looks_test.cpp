// How Calculate, its progress and its remarks look on a light and on a dark desktop.
#include <QLabel>
#include <QPushButton>
#include <cmath>
#include <set>

#include "astro/angle.h"
#include "tests/ui/light_and_dark.h"

namespace veyruna::ui {
namespace {

struct CalculateLooks : tests::LightAndDark {};

INSTANTIATE_TEST_SUITE_P(Sidebar, CalculateLooks, testing::Bool(), tests::lightOrDark);

TEST_P(CalculateLooks, TheRingOfTheFocusIsThereOnlyWithTheFocus) {
  auto* const button = shown.find<QPushButton>("calculateButton");
  // Across the button's left side, where no word stands: its edge, and the ring inside of it.
  const auto steps = [button] {
    const QImage picture = tests::pictureOf(*button);
    const double pixels = button->devicePixelRatioF();
    int count = 0;
    for (int x = qRound(2.0 * pixels); x < qRound(6.0 * pixels); ++x) {
      const int y = picture.height() / 2;
      count +=
          tests::contrast(picture.pixelColor(x, y), picture.pixelColor(x + 1, y)) > 1.5 ? 1 : 0;
    }
    return count;
  };
  shown.find<QWidget>("yearStepper")->setFocus();
  EXPECT_EQ(steps(), 0);
  button->setFocus();
  EXPECT_GE(steps(), 1);
}

TEST_P(CalculateLooks, TheProgressStandsBesideTheWordAndIsSeen) {
  auto* const button = shown.find<QPushButton>("calculateButton");
  const QImage before = tests::pictureOf(*button);
  shown.press("calculateButton");
  shown.find<QWidget>("calculateButton")->clearFocus();
  auto* const progress = shown.find<QWidget>("progress");
  ASSERT_TRUE(progress->isVisible());
  const double pixels = button->devicePixelRatioF();  // of the pictures
  const QRect place = progress->geometry();
  const auto inPixels = [pixels](const QRect& part) {
    return QRectF(QPointF(part.topLeft()) * pixels, QSizeF(part.size()) * pixels).toRect();
  };
  const QRect room = inPixels(place);
  const QImage during = tests::pictureOf(*button);
  EXPECT_GE(tests::visibleDifferences(before.copy(room), during.copy(room)), 10);
  // Beside the word: nothing of the button's own was drawn there, and the word ends close by.
  const QColor ground = before.pixelColor(room.center());
  EXPECT_LT(tests::bestContrast(before.copy(room), ground), 1.3) << "over the word";
  const QRect close = inPixels({place.left() - 12, place.top(), 12, place.height()});
  EXPECT_GT(tests::bestContrast(before.copy(close), ground), 3.0) << "far from the word";
  EXPECT_LE(place.height(), button->fontMetrics().height());
  EXPECT_TRUE(button->rect().contains(place));
}

TEST_P(CalculateLooks, TheSpokesOfTheProgressFadeOneAfterTheOther) {
  shown.press("calculateButton");
  auto* const progress = shown.find<QWidget>("progress");
  progress->resize(80, 80);
  const QImage wheel = tests::pictureOf(*progress);
  std::set<int> grays;
  for (int spoke = 0; spoke < 8; ++spoke) {
    const double angle = astro::twoPi * spoke / 8.0;
    const QPointF middle(wheel.width() / 2.0, wheel.height() / 2.0);
    const QPointF at = middle + 0.35 * wheel.width() * QPointF(std::sin(angle), -std::cos(angle));
    grays.insert(qGray(wheel.pixel(at.toPoint())));
  }
  EXPECT_GE(grays.size(), 7U);
}

TEST_P(CalculateLooks, TheProgressStaysBesideTheWordInAnotherType) {
  shown.press("calculateButton");
  auto* const button = shown.find<QPushButton>("calculateButton");
  const int before = shown.find<QWidget>("progress")->x();
  button->setFixedSize(button->size());
  QFont wide = button->font();
  wide.setLetterSpacing(QFont::AbsoluteSpacing, 3.0);
  button->setFont(wide);
  EXPECT_GT(shown.find<QWidget>("progress")->x(), before);
}

TEST_P(CalculateLooks, TheRoomForTheDifferenceIsTwoLines) {
  const auto* const difference = shown.find<QLabel>("difference");
  const int line = difference->fontMetrics().lineSpacing();
  EXPECT_GE(difference->minimumHeight(), 2 * line);
  EXPECT_LT(2 * difference->minimumHeight(), 5 * line);
}

}  // namespace
}  // namespace veyruna::ui
