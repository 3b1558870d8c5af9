// A window that calculates and draws all evening takes no more memory than one that did so once.
#include <gtest/gtest.h>
#include <malloc.h>

#include "tests/model/disk.h"
#include "tests/ui/shown_window.h"

namespace veyruna::ui {
namespace {

/// What the program has asked for and not given back; 0 under a sanitizer that keeps its own books,
/// and names what is lost itself.
double bytesInUse() {
  const struct mallinfo2 books = mallinfo2();
  return static_cast<double>(books.uordblks) + static_cast<double>(books.hblkhd);
}

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
  recalculateAndDraw(0, 100);
  const double before = bytesInUse();
  recalculateAndDraw(100, 100 + tests::times(200, 10'000));
  EXPECT_LT(bytesInUse() - before, 5e6);
}

}  // namespace
}  // namespace veyruna::ui
