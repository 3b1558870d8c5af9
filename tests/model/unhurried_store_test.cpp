// A store that can be held: what reaches the one behind it, and when.
#include "model/unhurried_store.h"

#include <QtTest/QTest>
#include <gtest/gtest.h>

#include "tests/model/fakes.h"
#include "tests/support/patience.h"

namespace veyruna {
namespace {

using model::UnhurriedStore;
using tests::MemorySettings;
using Group = model::SettingsStore::Group;

const QString hour = QStringLiteral("hour");
const QString place = QStringLiteral("place");

struct UnhurriedStoreTest : testing::Test {
  std::shared_ptr<MemorySettings> behind = std::make_shared<MemorySettings>();
  std::optional<UnhurriedStore> store{behind};
};

TEST_F(UnhurriedStoreTest, HandsOnAtOnceUnlessItIsHeld) {
  store->store({{hour, 1.0}});
  EXPECT_EQ(behind->groups, (std::vector<Group>{{{hour, 1.0}}}));
  EXPECT_EQ(store->stored(hour), 1.0);
}

TEST_F(UnhurriedStoreTest, HandsOnTheLastOfEachGroupWhenItIsLetGo) {
  store->hold();
  for (int i = 0; i < 60; ++i) {
    store->store({{hour, i}});
    store->store({{place, i}});
  }
  EXPECT_TRUE(behind->groups.empty());
  EXPECT_EQ(store->stored(hour), 59);
  EXPECT_EQ(store->stored(QStringLiteral("none")), QVariant());
  store->letGo();
  EXPECT_EQ(behind->groups, (std::vector<Group>{{{hour, 59}}, {{place, 59}}}));
  store->store({{hour, 60}});
  EXPECT_EQ(behind->groups.size(), 3U);
}

TEST_F(UnhurriedStoreTest, HandsOnWhatWaitsWhileItIsHeld) {
  store->hold();
  store->store({{hour, 1.0}});
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return !behind->groups.empty(); }, tests::patienceMilliseconds));
  store->store({{hour, 2.0}});
  EXPECT_EQ(behind->groups.size(), 1U);
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return behind->groups.size() == 2; }, tests::patienceMilliseconds));
}

TEST_F(UnhurriedStoreTest, HandsOnWhatWaitsWhenItGoes) {
  store->hold();
  store->store({{hour, 1.0}});
  store.reset();
  EXPECT_EQ(behind->values.value(hour), 1.0);
}

}  // namespace
}  // namespace veyruna
