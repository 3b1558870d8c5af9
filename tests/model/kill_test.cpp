// A program killed in the middle of saving leaves the old list or the new one, whole.
#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <random>
#include <sys/wait.h>
#include <thread>

#include "model/locations_text.h"
#include "model/qt_settings_store.h"
#include "model/stored_settings.h"
#include "tests/model/disk.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using model::CityPreset;

/// Runs kill_child, kills it some time after its first announcement, and returns the last step it
/// announced.
std::uint32_t lastStepOfAKilledChild(const char* what, const QString& path,
                                     std::chrono::microseconds life) {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) {
    throw std::runtime_error("no pipe for the child");
  }
  const QByteArray file = QFile::encodeName(path);
  const pid_t child = fork();
  if (child == 0) {
    dup2(ends[1], STDOUT_FILENO);
    execl(VEYRUNA_KILL_CHILD, VEYRUNA_KILL_CHILD, what, file.constData(), nullptr);
    _exit(127);
  }
  close(ends[1]);
  std::uint32_t step = 0;
  bool isAlive = read(ends[0], &step, sizeof step) == sizeof step;
  std::this_thread::sleep_for(life);
  kill(child, SIGKILL);
  int status = 0;
  waitpid(child, &status, 0);
  isAlive = isAlive && WIFSIGNALED(status);
  while (read(ends[0], &step, sizeof step) == sizeof step) {
  }
  close(ends[0]);
  if (!isAlive) {
    throw std::runtime_error("the child ended before it was killed");
  }
  return step;
}

class Kill : public testing::Test {
 protected:
  [[nodiscard]] std::chrono::microseconds someTime() {
    return std::chrono::microseconds(std::uniform_int_distribution<int>(0, longest_)(random_));
  }

  /// A slow machine gets more time, as long as no child has come to its first save.
  void learnFrom(std::uint64_t stepsOfAll) {
    longest_ = stepsOfAll == 0 ? std::min(2 * longest_, 2'000'000) : longest_;
  }

  const int kills = tests::times(50, 1000);

 private:
  int longest_ = 4'000;
  std::mt19937 random_{20};
};

TEST_F(Kill, LeavesAWholeListOfPlaces) {
  QList<CityPreset> base;
  for (int i = 0; i < 60; ++i) {
    base.append({QUuid::createUuid(), u"Kept place %1"_s.arg(i, 3), 0.01 * i, -0.02 * i});
  }
  std::uint64_t steps = 0;
  int pieces = 0;
  int lockedOut = 0;
  for (int run = 0; run < kills; ++run) {
    const tests::Folder folder;
    const QString path = folder / u"locations.json"_s;
    tests::writeBytes(path, model::locationsText(base));
    const std::uint32_t last = lastStepOfAKilledChild("places", path, someTime());

    const auto places = model::placesIn(tests::bytesIn(path));
    ASSERT_TRUE(places) << "killed after step " << last;
    QStringList added;
    QList<CityPreset> kept;
    for (const CityPreset& place : *places) {
      if (place.name.startsWith(u"Kept"_s)) {
        kept << place;
      } else {
        added << place.name;
      }
    }
    ASSERT_EQ(kept, base) << "killed after step " << last;
    // The last step that was announced, or the one after it.
    const auto after = [](std::uint32_t step) {
      return step % 2 == 1 ? QStringList{u"Place of step %1"_s.arg(step)} : QStringList();
    };
    ASSERT_TRUE(added == after(last) || added == after(last + 1)) << "killed after step " << last;
    ASSERT_FALSE(tests::isKeptAside(folder.path(), u"locations"_s, tests::bytesIn(path)));
    steps += last;
    learnFrom(steps);
    for (const QString& name : folder.names()) {
      pieces += name.startsWith(u".veyruna-"_s) ? 1 : 0;
    }
    const QFileInfo lock(path + u".lock"_s);
    lockedOut += lock.exists() && lock.size() == 0 ? 1 : 0;
  }
  std::printf(
      "%d programs killed after %llu saves; every list whole; %d left a temporary file, %d a lock "
      "without an owner\n",
      kills, static_cast<unsigned long long>(steps), pieces, lockedOut);
  EXPECT_GT(steps, 0U);
}

TEST_F(Kill, LeavesWholePreferences) {
  std::uint64_t steps = 0;
  int lockedOut = 0;
  for (int run = 0; run < kills; ++run) {
    const tests::Folder folder;
    const QString path = folder / u"settings.conf"_s;
    const std::uint32_t last = lastStepOfAKilledChild("settings", path, someTime());
    const qint64 year = model::readDateSettings(model::QtSettingsStore(path)).year;
    if (last > 0) {
      ASSERT_TRUE(year == last || year == last + 1) << year << ", killed after step " << last;
      ASSERT_EQ(tests::bytesIn(path).count('\n'), 6);
    }
    steps += last;
    learnFrom(steps);
    const QFileInfo lock(path + u".lock"_s);
    lockedOut += lock.exists() && lock.size() == 0 ? 1 : 0;
  }
  std::printf(
      "%d programs killed after %llu saves; at most the last change was lost; %d left a lock "
      "without an owner\n",
      kills, static_cast<unsigned long long>(steps), lockedOut);
  EXPECT_GT(steps, 0U);
}

}  // namespace
}  // namespace veyruna
