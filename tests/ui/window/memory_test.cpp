// A window that calculates and draws all evening takes no more memory than one that did so once.
#include <gtest/gtest.h>

#include "tests/model/disk.h"
#include "tests/support/heap.h"
#include "tests/ui/shown_window.h"

namespace veyruna::ui {
namespace {

TEST(Memory, StaysThroughManyRecalculationsWithAChartShown) {
  tests::ShownWindow shown;
  const auto recalculateAndDraw = [&shown](int first, int last) {
    for (int i = first; i < last; ++i) {
      if (i % 50 == 0) {
        shown.window.selectTab(i % 100 == 0 ? exports::OutputTab::starMap
                                            : exports::OutputTab::horoscope);
      }
      shown.model.setDayIndex(i % 30);
      shown.model.setHour(i % 24 + 0.25);
      shown.calculate();
      EXPECT_FALSE(shown.window.grab().isNull());
      shown.settings->groups.clear();  // the test's own memory of what was stored
    }
  };
  // Long evenings fill what is kept of texts and letters first.
  const int warmUp = tests::times(100, 2'000);
  recalculateAndDraw(0, warmUp);
  const auto before = static_cast<double>(tests::heapBytes());
  recalculateAndDraw(warmUp, warmUp + tests::times(200, 10'000));
  EXPECT_LT(static_cast<double>(tests::heapBytes()) - before, 5e6);
}

TEST(Memory, PaintingWhatIsChosenAgainTakesNoMore) {
  tests::ShownWindow shown;
  for (const char* const name : {"tab1", "northSouthN", "calculateButton"}) {
    auto* const button = shown.window.findChild<QAbstractButton*>(QString::fromLatin1(name));
    ASSERT_NE(button, nullptr) << name;
    const auto paint = [button](int times) {
      for (int i = 0; i < times; ++i) {
        EXPECT_FALSE(button->grab().isNull());
      }
    };
    paint(50);
    const auto before = static_cast<double>(tests::heapBytes());
    paint(500);
    EXPECT_LT(static_cast<double>(tests::heapBytes()) - before, 1e5) << name;
  }
}

}  // namespace
}  // namespace veyruna::ui
