// Who may write the file, and who its folder.
#include <cerrno>
#include <sys/stat.h>

#include "files/file_writer.h"
#include "tests/files/files_fixture.h"

namespace veyruna {
namespace {

using files::FileWriter;
using files::writeWholeFile;
using tests::AsNobody;
using tests::before;
using tests::fileContent;
using tests::longer;
using tests::modeOf;
using tests::namesIn;
using tests::shorter;

using Names = std::vector<std::string>;

class Permissions : public tests::Files {
 protected:
  Permissions() { tests::writeFile(file, before); }

  void permit(mode_t ofFile, mode_t ofFolder) const {
    ASSERT_EQ(chmod(file.c_str(), ofFile), 0);
    ASSERT_EQ(chmod(folder.path().c_str(), ofFolder), 0);
  }
  /// Writes without the rights of root; the reason why not, or 0.
  static int asNobody(const std::string& path, const std::string& bytes) {
    const AsNobody nobody;
    EXPECT_TRUE(nobody.holds());
    return writeWholeFile(path, bytes).value();
  }
};

TEST_F(Permissions, AFileThatMayNotBeWrittenStaysAsItIs) {
  permit(0444, 0777);
  EXPECT_EQ(asNobody(file, shorter), EACCES);
  permit(0444, 0555);
  EXPECT_EQ(asNobody(file, shorter), EACCES);
  EXPECT_EQ(fileContent(file), before);
  EXPECT_EQ(namesIn(folder.path()), Names{"file.txt"});
}

TEST_F(Permissions, AFileIsReplacedInAFolderThatMayNotBeRead) {
  permit(0666, 0333);
  EXPECT_EQ(asNobody(file, shorter), 0);
  EXPECT_EQ(fileContent(file), shorter);
}

TEST_F(Permissions, AFileIsWrittenOverWhereOnlyItsFolderMayNotBeWritten) {
  permit(0666, 0555);
  struct stat old {};
  ASSERT_EQ(stat(file.c_str(), &old), 0);
  for (const std::string& bytes : {longer, shorter, std::string()}) {
    EXPECT_EQ(asNobody(file, bytes), 0);
    EXPECT_TRUE(fileContent(file) == bytes);
  }
  struct stat now {};
  ASSERT_EQ(stat(file.c_str(), &now), 0);
  EXPECT_EQ(now.st_ino, old.st_ino);
  EXPECT_EQ(modeOf(file), 0666U);
  EXPECT_EQ(namesIn(folder.path()), Names{"file.txt"});
}

TEST_F(Permissions, WhatIsWrittenOverIsAsItWasUntilAllIsThere) {
  permit(0666, 0555);
  const AsNobody nobody;
  ASSERT_TRUE(nobody.holds());
  {
    FileWriter abandoned(file);
    abandoned.write(longer);
  }
  EXPECT_EQ(fileContent(file), before);
  FileWriter writer(file);
  writer.write(longer);
  EXPECT_EQ(fileContent(file), before);
  writer.finish();
  EXPECT_TRUE(fileContent(file) == longer);
}

TEST_F(Permissions, ANewFileNeedsAFolderThatMayBeWritten) {
  permit(0666, 0555);
  EXPECT_EQ(asNobody(folder / "new.txt", shorter), EACCES);
  EXPECT_EQ(namesIn(folder.path()), Names{"file.txt"});
}

/// In a folder like /tmp a file of somebody else's may be written, but not replaced.
TEST_F(Permissions, AnothersFileInASharedFolderIsWrittenOver) {
  permit(0666, 01777);
  EXPECT_EQ(asNobody(file, shorter), 0);
  EXPECT_EQ(fileContent(file), shorter);
  EXPECT_EQ(namesIn(folder.path()), Names{"file.txt"});
}

}  // namespace
}  // namespace veyruna
