// A file is put in its place whole, or not at all, and why not is told.
#include <QDir>
#include <cerrno>
#include <gtest/gtest.h>

#include "export/file_names.h"
#include "export/whole_file.h"
#include "tests/model/disk.h"
#include "tests/model/observed.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using exports::writeWholeFile;
using tests::bytesIn;
using tests::Folder;
using tests::writeBytes;

const QByteArray oldBytes = "what was here before";
const QByteArray newBytes(20'000, 'n');

TEST(Writing, PutsTheBytesThere) {
  const Folder folder;
  const QString path = folder / u"a.txt"_s;
  EXPECT_EQ(writeWholeFile(path, newBytes), std::nullopt);
  EXPECT_EQ(bytesIn(path), newBytes);
  EXPECT_EQ(writeWholeFile(path, {}), std::nullopt);
  EXPECT_EQ(bytesIn(path), QByteArray());
  EXPECT_EQ(folder.names(), QStringList{u"a.txt"_s});
}

TEST(Writing, FollowsALinkAndKeepsWhoMayRead) {
  const Folder folder;
  writeBytes(folder / u"real"_s, oldBytes);
  tests::setMode(folder / u"real"_s, 0640);
  ASSERT_TRUE(QFile::link(folder / u"real"_s, folder / u"link"_s));
  EXPECT_EQ(writeWholeFile(folder / u"link"_s, newBytes), std::nullopt);
  EXPECT_EQ(bytesIn(folder / u"real"_s), newBytes);
  EXPECT_TRUE(QFileInfo(folder / u"link"_s).isSymLink());
  EXPECT_FALSE(QFileInfo(folder / u"real"_s).permission(QFile::ReadOther));
}

/// Names a person may give a place or a file.
class Names : public testing::TestWithParam<QString> {};

TEST_P(Names, MayBeWrittenAndReplaced) {
  const Folder folder;
  tests::FakeModel world;
  world.model.setSelectedCityID(std::get<QUuid>(world.model.addCity(GetParam())));
  const QString name = exports::proposedFileName(world.model, u"Star Map", u"svg");
  const QString path = folder.path() + u'/' + name;
  EXPECT_EQ(writeWholeFile(path, oldBytes), std::nullopt);
  EXPECT_EQ(writeWholeFile(path, newBytes), std::nullopt);
  EXPECT_EQ(bytesIn(path), newBytes);
  EXPECT_EQ(folder.names(), QStringList{name});
}

INSTANTIATE_TEST_SUITE_P(OfPlaces, Names,
                         testing::Values(u"Salt & <Sand>"_s, u"\"Quay\" 'n' `$HOME`"_s,
                                         u"🌘 👩‍🚀"_s, u"مرفأ עיר"_s, u"a/b\nc\\d"_s,
                                         u"%20 %1"_s, QString(300, u'x'), u"語"_s.repeated(300)));

TEST(Writing, TakesEveryLengthOfName) {
  const Folder folder;
  for (int length = 240; length <= 255; ++length) {
    const QString path = folder / QString(length, u'x');
    EXPECT_EQ(writeWholeFile(path, oldBytes), std::nullopt) << length;
    EXPECT_EQ(writeWholeFile(path, newBytes), std::nullopt) << length;
    EXPECT_EQ(bytesIn(path), newBytes);
    QFile::remove(path);
  }
  EXPECT_EQ(folder.names(), QStringList());
}

// In the system's words, which may be the user's language.
TEST(Writing, RefusesANameThatIsTooLong) {
  const Folder folder;
  EXPECT_EQ(writeWholeFile(folder / QString(300, u'x'), newBytes), qt_error_string(ENAMETOOLONG));
  EXPECT_EQ(folder.names(), QStringList());
}

TEST(Writing, RefusesAFolder) {
  const Folder folder;
  for (const qsizetype length : {5, 255}) {
    const QString path = folder / QString(length, u'x');
    ASSERT_TRUE(QDir().mkdir(path));
    const auto error = writeWholeFile(path, newBytes);
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
  EXPECT_EQ(writeWholeFile(inner + u"/a.txt"_s, newBytes), u"No such file or directory"_s);
  EXPECT_EQ(writeWholeFile(inner + u'/' + QString(255, u'x'), newBytes),
            u"No such file or directory"_s);
  EXPECT_EQ(folder.names(), QStringList());
}

/// For a short name and one that leaves no room for a suffix.
class Refusals : public testing::TestWithParam<int> {
 protected:
  [[nodiscard]] static QString name() { return QString(GetParam(), u'x'); }
};

TEST_P(Refusals, OfAReadOnlyFolder) {
  const Folder folder;
  writeBytes(folder / name(), oldBytes);
  tests::giveToNobody(folder / name());
  tests::giveToNobody(folder.path());
  tests::setMode(folder.path(), 0555);
  {
    const tests::AsNobody nobody;
    if (!nobody.holds()) {
      GTEST_SKIP() << "a read-only folder: the rights of root cannot be given up here";
    }
    EXPECT_EQ(writeWholeFile(folder / name(), newBytes), u"Permission denied"_s);
    EXPECT_EQ(writeWholeFile(folder / u"new.txt"_s, newBytes), u"Permission denied"_s);
  }
  tests::setMode(folder.path(), 0755);
  EXPECT_EQ(folder.names(), QStringList{name()});
  EXPECT_EQ(bytesIn(folder / name()), oldBytes);
}

TEST_P(Refusals, OfAFullDisk) {
  const tests::SmallFileSystem disk;
  if (!disk.isMounted()) {
    GTEST_SKIP() << "a full file system: a small one cannot be mounted here";
  }
  writeBytes(disk / name(), oldBytes);
  for (const int blocksLeft : {0, 1, 2, 4}) {
    disk.fill(blocksLeft);
    EXPECT_EQ(writeWholeFile(disk / name(), newBytes), u"No space left on device"_s);
    EXPECT_TRUE(bytesIn(disk / name()) == oldBytes) << blocksLeft;
    EXPECT_EQ(Folder::namesIn(disk.path()).size(), 2);  // the file and what fills the disk
    disk.empty();
  }
  EXPECT_EQ(writeWholeFile(disk / name(), newBytes), std::nullopt);
  EXPECT_TRUE(bytesIn(disk / name()) == newBytes);
}

INSTANTIATE_TEST_SUITE_P(NameLengths, Refusals, testing::Values(5, 255),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace veyruna
