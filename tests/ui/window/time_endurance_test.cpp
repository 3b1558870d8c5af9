// Time that plays for long: the memory does not grow with the frames. VEYRUNA_LONG=1 plays 10,000.
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>

#include "tests/support/heap.h"
#include "tests/ui/shown_window.h"

namespace veyruna {
namespace {

TEST(TimeEndurance, MemoryStaysWhereItIsWhileTimePlays) {
  const bool isLong = qEnvironmentVariableIsSet("VEYRUNA_LONG");
  const int frames = isLong ? 10'000 : 400;
  constexpr int framesOfATab = 50;
  constexpr std::size_t allowance = 1'500'000;  // a chart's text and shapes are 100,000 bytes

  tests::ShownWindow shown;
  shown.window.resize(700, 500);
  shown.time.setOn(true);
  shown.time.setStep(model::TimeStep::quarter);
  std::size_t most = 0;
  std::size_t mostBefore = 0;
  for (int frame = 0; frame < frames; ++frame) {
    if (frame % framesOfATab == 0) {
      const int tab = frame / framesOfATab % (static_cast<int>(exports::outputTabCount) - 1);
      shown.window.selectTab(exports::outputTabs.at(static_cast<std::size_t>(tab)));
    }
    shown.time.stepBy(1);
    tests::turnEventLoop();
    while (shown.tasks.count() > 0) {
      shown.tasks.runNext();
    }
    most = std::max(most, tests::heapBytes());
    if (frame + 1 == frames / 2) {
      mostBefore = std::exchange(most, 0);
    }
  }
  EXPECT_LT(most, mostBefore + allowance);
  if (isLong) {
    std::printf("%d frames: at most %zu bytes in the first half, %zu in the second\n", frames,
                mostBefore, most);
  }
}

}  // namespace
}  // namespace veyruna
