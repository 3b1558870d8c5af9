// A thousand exports of every kind in a row, with VEYRUNA_LONG=1: what the last ones take of memory
// and of open files is what the first ones took.
#include <cstdio>
#include <gtest/gtest.h>

#include "export/document_exporter.h"
#include "tests/model/disk.h"
#include "tests/model/observed.h"
#include "tests/support/memory_use.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using documents::Form;
using exports::OutputTab;

class ManyExports : public testing::Test {
 protected:
  /// Saves one tab in one form; whether it can be had in that form.
  bool saves(OutputTab tab, Form form) {
    const QString path = folder / u"export"_s;
    bool isTold = false;
    const auto told = [&](const std::optional<QString>& error) {
      EXPECT_EQ(error, std::nullopt);
      isTold = true;
    };
    if (documents::formEntry(form).isAsItIs) {
      const auto content = exporter.native(tab);
      if (!content || content->form != form) {
        return false;
      }
      exporter.save(*content, path, told);
    } else {
      const auto content = exporter.sheet(tab, form);
      if (!content) {
        return false;
      }
      exporter.save(*content, path, told);
    }
    EXPECT_TRUE(isTold);
    return true;
  }

  const tests::Folder folder;
  tests::ObservedModel world{tests::referenceCases().front()};
  exports::DocumentExporter exporter{world.model};
};

TEST_F(ManyExports, OfEveryKindTakeNoMoreThanTheFirst) {
  constexpr int readings = 8;
  const int times = tests::times(1, 125);  // between two readings
  int kinds = 0;
  for (const OutputTab tab : exports::outputTabs) {
    for (const documents::FormEntry& entry : documents::allForms) {
      if (entry.isOfValues || !saves(tab, entry.form)) {
        continue;
      }
      ++kinds;
      SCOPED_TRACE(exports::title(tab).toStdString() + " as " + std::string(entry.name));
      std::vector<tests::MemoryUse> uses;
      for (int reading = 0; reading < readings; ++reading) {
        for (int i = 0; i < times; ++i) {
          saves(tab, entry.form);
        }
        uses.push_back(tests::memoryUse());
      }
      tests::expectFlat(uses, 0.5);
      std::printf("%-16s %-10s heap %5.2f to %5.2f MB, in memory %6.1f MB, %d files open\n",
                  exports::title(tab).toUtf8().constData(), std::string(entry.name).c_str(),
                  uses.at(1).heapMB, uses.back().heapMB, uses.back().residentMB,
                  uses.back().openFiles);
    }
  }
  EXPECT_EQ(kinds, 17);
  EXPECT_EQ(folder.names(), QStringList{u"export"_s});
}

}  // namespace
}  // namespace veyruna
