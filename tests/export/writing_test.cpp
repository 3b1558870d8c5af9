// An export's file is put in its place whole, or not at all, and why not is told in plain words.
#include <QDir>
#include <cerrno>
#include <gtest/gtest.h>

#include "export/document_exporter.h"
#include "export/file_names.h"
#include "tests/model/disk.h"
#include "tests/model/observed.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using exports::DocumentExporter;
using tests::bytesIn;
using tests::Folder;
using tests::reasonOf;
using tests::writeBytes;

const QString oldText = u"what was here before"_s;
const QString newText(20'000, u'n');

/// Saves a text as a tab's; why not, in plain words.
std::optional<QString> saved(const QString& path, const QString& text) {
  const tests::FakeModel world;
  const DocumentExporter exporter(world.model, [](const QString& /*line*/) {});
  std::optional<QString> error = u"never told"_s;
  exporter.save(exports::NativeExport{text, documents::Form::text, {}, {}}, path,
                [&error](const std::optional<QString>& told) { error = told; });
  return error;
}

/// Names a person may give a place or a file.
class Names : public testing::TestWithParam<QString> {};

TEST_P(Names, MayBeWrittenAndReplaced) {
  const Folder folder;
  tests::FakeModel world;
  world.model.setSelectedCityID(std::get<QUuid>(world.model.addCity(GetParam())));
  const QString name = exports::proposedFileName(world.model, u"Star Map", u"svg");
  const QString path = folder.path() + u'/' + name;
  EXPECT_EQ(saved(path, oldText), std::nullopt);
  EXPECT_EQ(saved(path, newText), std::nullopt);
  EXPECT_EQ(bytesIn(path), newText.toUtf8());
  EXPECT_EQ(folder.names(), QStringList{name});
}

INSTANTIATE_TEST_SUITE_P(OfPlaces, Names,
                         testing::Values(u"Salt & <Sand>"_s, u"\"Quay\" 'n' `$HOME`"_s,
                                         u"🌘 👩‍🚀"_s, u"مرفأ עיר"_s, u"a/b\nc\\d"_s,
                                         u"%20 %1"_s, QString(300, u'x'), u"語"_s.repeated(300)));

// In the system's words, which may be the user's language.
TEST(Writing, RefusesANameThatIsTooLong) {
  const Folder folder;
  EXPECT_EQ(saved(folder / QString(300, u'x'), newText), qt_error_string(ENAMETOOLONG));
  EXPECT_EQ(folder.names(), QStringList());
}

TEST(Writing, RefusesAFolder) {
  const Folder folder;
  for (const qsizetype length : {5, 255}) {
    const QString path = folder / QString(length, u'x');
    ASSERT_TRUE(QDir().mkdir(path));
    const auto error = saved(path, newText);
    ASSERT_TRUE(error);
    EXPECT_FALSE(error->isEmpty());
    EXPECT_EQ(folder.names().size(), 1);
    ASSERT_TRUE(QDir().rmdir(path));
  }
}

TEST(Writing, RefusesAFolderThatVanished) {
  const Folder folder;
  const QString inner = folder / u"inner"_s;
  ASSERT_TRUE(QDir().mkdir(inner));
  ASSERT_TRUE(QDir(inner).removeRecursively());
  EXPECT_EQ(saved(inner + u"/a.txt"_s, newText), reasonOf(ENOENT));
  EXPECT_EQ(saved(inner + u'/' + QString(255, u'x'), newText), reasonOf(ENOENT));
  EXPECT_EQ(folder.names(), QStringList());
}

/// For a short name and one that leaves no room for a suffix.
class Refusals : public testing::TestWithParam<int> {
 protected:
  [[nodiscard]] static QString name() { return QString(GetParam(), u'x'); }
};

TEST_P(Refusals, OfANewFileInAReadOnlyFolder) {
  const Folder folder;
  writeBytes(folder / name(), oldText.toUtf8());
  tests::giveToNobody(folder / name());
  tests::giveToNobody(folder.path());
  tests::setMode(folder.path(), 0555);
  {
    const tests::AsNobody nobody;
    ASSERT_TRUE(nobody.holds());
    EXPECT_EQ(saved(folder / u"new.txt"_s, newText), reasonOf(EACCES));
    EXPECT_EQ(saved(folder / name(), newText), std::nullopt);  // the person's own, already there
  }
  tests::setMode(folder.path(), 0755);
  EXPECT_EQ(folder.names(), QStringList{name()});
  EXPECT_TRUE(bytesIn(folder / name()) == newText.toUtf8());
}

TEST_P(Refusals, OfAFullDisk) {
  const tests::SmallFileSystem disk;
  if (!disk.isMounted()) {
    GTEST_SKIP() << "a full file system: a small one cannot be mounted here";
  }
  writeBytes(disk / name(), oldText.toUtf8());
  for (const int blocksLeft : {0, 1, 2, 4}) {
    disk.fill(blocksLeft);
    EXPECT_EQ(saved(disk / name(), newText), reasonOf(ENOSPC));
    EXPECT_TRUE(bytesIn(disk / name()) == oldText.toUtf8()) << blocksLeft;
    EXPECT_EQ(Folder::namesIn(disk.path()).size(), 2);  // the file and what fills the disk
    disk.empty();
  }
  EXPECT_EQ(saved(disk / name(), newText), std::nullopt);
  EXPECT_TRUE(bytesIn(disk / name()) == newText.toUtf8());
}

INSTANTIATE_TEST_SUITE_P(NameLengths, Refusals, testing::Values(5, 255),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace veyruna
