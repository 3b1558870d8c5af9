// The program is used at random for long, and nothing happens that should not: no end, no word of
// complaint from Qt, no memory or open file more than after the first minutes.
//
// VEYRUNA_SOAK_SECONDS  how long; where it is not set, a short while that is counted in steps
// VEYRUNA_SOAK_SEED     the seed; where it is not set, a new one, or that of the short form
#include <QDateTime>
#include <QElapsedTimer>
#include <QLocale>
#include <QPixmapCache>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <memory>
#include <random>

#include "tests/model/fakes.h"
#include "tests/soak/random_person.h"
#include "tests/support/memory_use.h"
#include "tests/ui/opened_addresses.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;

/// What Qt complains of.
QStringList& complaints() {
  static QStringList all;
  return all;
}

void hear(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
  // The platform without a screen says so of what a screen would do.
  if (type == QtInfoMsg || type == QtDebugMsg ||
      text.startsWith(u"This plugin does not support"_s)) {
    return;
  }
  std::fprintf(stderr, "Qt says: %s\n", qPrintable(text));
  complaints().append(text);
}

/// The steps as they were taken, in a file: the last of them lead to what went wrong.
class Diary {
 public:
  // The run with decimal commas may be beside the other one.
  Diary()
      : file_(std::fopen(
            QLocale().decimalPoint() == u","_s ? "soak_with_decimal_comma.log" : "soak.log", "w")) {
  }
  Diary(const Diary&) = delete;
  Diary& operator=(const Diary&) = delete;
  ~Diary() { std::fclose(file_); }

  void write(const QString& step) {
    constexpr int most = 200'000;
    if (++steps_ % most == 0) {
      std::rewind(file_);
    }
    std::fprintf(file_, "%d %s\n", steps_, qPrintable(step));
    std::fflush(file_);
  }
  [[nodiscard]] int steps() const { return steps_; }

 private:
  std::FILE* file_;
  int steps_ = 0;
};

class Soak : public testing::Test {
 protected:
  Soak() {
    qInstallMessageHandler(&hear);
    complaints().clear();
    // Qt 6.4 keeps the names of pieces it has drawn for windows that are gone, some kilobytes for
    // each window and sheet. What else grew would not be seen beside that.
    QPixmapCache::setCacheLimit(0);
    for (const char* const program : {"lp", "lpstat"}) {
      QFile file(folder.filePath(QString::fromLatin1(program)));
      EXPECT_TRUE(file.open(QIODevice::WriteOnly));
      file.write("#!/bin/sh\n[ \"$1\" = -e ] && echo Attic\nexec cat > /dev/null\n");
      file.close();
      file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }
    qputenv("PATH", folder.path().toUtf8() + ":/usr/bin:/bin");
    qputenv("HOME", folder.path().toUtf8());
  }
  ~Soak() override {
    qputenv("PATH", usualPath);
    qInstallMessageHandler(nullptr);
  }

  [[nodiscard]] model::AstronomyModel::Surroundings surroundings() const {
    return {std::make_shared<model::QtSettingsStore>(folder.filePath(u"settings.conf"_s)),
            folder.filePath(u"locations.json"_s), &QUuid::createUuid, model::poolExecutor()};
  }

  const QTemporaryDir folder;
  const QByteArray usualPath = qgetenv("PATH");
  tests::OpenedAddresses addresses;
  Diary diary;
};

TEST_F(Soak, RandomUseBreaksNothing) {
  const int seconds = qEnvironmentVariableIntValue("VEYRUNA_SOAK_SECONDS");
  const bool isLong = seconds > 0;
  bool isSeeded = false;
  std::uint64_t seed = qEnvironmentVariable("VEYRUNA_SOAK_SEED").toULongLong(&isSeeded);
  if (!isSeeded) {
    seed = isLong ? std::random_device()() : 20;
  }
  std::printf("VEYRUNA_SOAK_SEED=%llu\n", static_cast<unsigned long long>(seed));

  const QString exports = folder.filePath(u"exports"_s);
  ASSERT_TRUE(QDir().mkpath(exports));
  ui::VeyrunaAstroApp program(surroundings(), folder.filePath(u"window.ini"_s));
  tests::RandomPerson person(program, exports, seed,
                             [this](const QString& step) { diary.write(step); });
  program.openWindow();

  // Twelve rests, or one every half minute; a rest is where memory is read.
  const int rests = isLong ? std::max(6, seconds / 30) : 4;
  std::vector<tests::MemoryUse> uses;
  QElapsedTimer clock;
  clock.start();
  for (int rest = 1; rest <= rests; ++rest) {
    person.useUntil([&] {
      constexpr int stepsOfShortForm = 150;
      return isLong ? clock.elapsed() * rests >= qint64{seconds} * 1000 * rest
                    : diary.steps() >= stepsOfShortForm * rest;
    });
    person.tidyUp();
    uses.push_back(tests::memoryUse());
    std::printf("%7.1f s, %7d steps, heap %6.1f MB, in memory %6.1f MB, %d files open\n",
                static_cast<double>(clock.elapsed()) / 1e3, diary.steps(), uses.back().heapMB,
                uses.back().residentMB, uses.back().openFiles);
    std::fflush(stdout);
  }
  EXPECT_EQ(complaints(), QStringList());
  int controls = 0;
  for (auto each = person.driven().begin(); each != person.driven().end(); ++each) {
    controls += each.value() > 0 ? 1 : 0;
    diary.write(each.key() + u" driven: "_s + QString::number(each.value()));
    EXPECT_TRUE(each.value() > 0 || !isLong) << each.key().toStdString() << " was not reached";
  }
  std::printf("%d controls and menu entries driven\n", controls);
  EXPECT_GT(controls, isLong ? 60 : 30);
  if (isLong) {
    EXPECT_GT(QDir(exports).entryList(QDir::Files).size(), 2);
    tests::expectFlat(uses, 3.0);  // a chart's pixels at the size of a rest
  }
}

}  // namespace
}  // namespace veyruna
