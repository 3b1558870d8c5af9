// What the system refuses half way leaves the old file, and nothing beside it.
#include <cerrno>
#include <cstdlib>

#include "files/file_writer.h"
#include "tests/files/faulty_system.h"
#include "tests/files/files_fixture.h"

namespace veyruna {
namespace {

using files::writeWholeFile;
using tests::Faults;
using tests::FaultySystem;
using tests::fileContent;
using tests::namesIn;

using Names = std::vector<std::string>;

const std::string old(100'000, 'b');
const std::string after(200'000, 'a');

class FileFaults : public tests::Files {
 protected:
  FileFaults() { restore(); }

  void restore() const { tests::writeFile(file, old); }
  /// Why writing fails under the faults, or 0.
  [[nodiscard]] int reasonUnder(const Faults& faults) const {
    const FaultySystem system(faults);
    return writeWholeFile(file, after).value();
  }
  void expectAsItWas() const {
    EXPECT_TRUE(fileContent(file) == old);
    EXPECT_EQ(namesIn(folder.path()), Names{"file.txt"});
  }
  void expectReplaced() const {
    EXPECT_TRUE(fileContent(file) == after);
    EXPECT_EQ(namesIn(folder.path()), Names{"file.txt"});
  }
};

TEST_F(FileFaults, AFileSystemThatNeedsNamesHasThemForAWhile) {
  EXPECT_EQ(reasonUnder({.needsNames = true}), 0);
  expectReplaced();
  const FaultySystem system({.needsNames = true});
  EXPECT_EQ(writeWholeFile(folder / "new.txt", after), std::error_code());
  EXPECT_EQ(namesIn(folder.path()), (Names{"file.txt", "new.txt"}));
}

/// A file without a name gets one through /proc.
TEST_F(FileFaults, WithoutProcFilesHaveNamesForAWhile) {
  EXPECT_EQ(reasonUnder({.hidesProcesses = true}), 0);
  expectReplaced();
  const FaultySystem system({.hidesProcesses = true});
  EXPECT_EQ(writeWholeFile(folder / "new.txt", after), std::error_code());
  EXPECT_TRUE(fileContent(folder / "new.txt") == after);
  EXPECT_EQ(namesIn(folder.path()), (Names{"file.txt", "new.txt"}));
}

TEST_F(FileFaults, AnUnfinishedFileWithANameIsTakenAway) {
  const FaultySystem system({.needsNames = true});
  {
    files::FileWriter writer(file);
    files::FileWriter moved = std::move(writer);
    moved.write(after);
    EXPECT_EQ(namesIn(folder.path()).size(), 2U);
  }
  expectAsItWas();
}

TEST_F(FileFaults, AFullDiskLeavesTheOldFile) {
  for (const bool needsNames : {false, true}) {
    for (const std::size_t room : {0U, 1U, 65'536U, 199'999U}) {
      EXPECT_EQ(reasonUnder({.needsNames = needsNames, .room = room}), ENOSPC) << room;
      expectAsItWas();
    }
  }
  EXPECT_EQ(reasonUnder({.room = after.size()}), 0);
  expectReplaced();
}

TEST_F(FileFaults, WhatCannotBePutOnDiskIsNotPutInPlace) {
  for (const bool needsNames : {false, true}) {
    EXPECT_EQ(reasonUnder({.needsNames = needsNames, .syncRefuses = EIO}), EIO);
    expectAsItWas();
  }
}

/// The new file is there whole; whether it stays there without power is what cannot be promised.
TEST_F(FileFaults, AFolderThatCannotBePutOnDiskIsToldUnlessNoneThereCan) {
  EXPECT_EQ(reasonUnder({.folderSyncRefuses = EIO}), EIO);
  expectReplaced();
  restore();
  EXPECT_EQ(reasonUnder({.folderSyncRefuses = EINVAL}), 0);
  expectReplaced();
}

TEST_F(FileFaults, AReplacementThatFailsLeavesTheOldFile) {
  for (const bool needsNames : {false, true}) {
    EXPECT_EQ(reasonUnder({.needsNames = needsNames, .renameRefuses = EIO}), EIO);
    expectAsItWas();
  }
}

/// A folder that may not be written, a read-only one, and files that are mounted by themselves.
TEST_F(FileFaults, AFileInAFolderThatRefusesIsWrittenOver) {
  for (const int reason : {EACCES, EPERM, EROFS}) {
    restore();
    EXPECT_EQ(reasonUnder({.folderRefuses = reason}), 0);
    expectReplaced();
  }
  for (const int reason : {EACCES, EPERM, EROFS, EBUSY, EXDEV}) {
    for (const bool needsNames : {false, true}) {
      restore();
      EXPECT_EQ(reasonUnder({.needsNames = needsNames, .renameRefuses = reason}), 0);
      expectReplaced();
    }
  }
}

TEST_F(FileFaults, AnotherRefusalOfTheFolderIsNoReasonToWriteOver) {
  EXPECT_EQ(reasonUnder({.folderRefuses = ENOSPC}), ENOSPC);
  EXPECT_EQ(reasonUnder({.folderRefuses = EMFILE}), EMFILE);
  expectAsItWas();
}

TEST_F(FileFaults, ANewFileIsRefusedWithTheFoldersReason) {
  const FaultySystem system({.folderRefuses = EROFS});
  EXPECT_EQ(writeWholeFile(folder / "new.txt", after).value(), EROFS);
  expectAsItWas();
}

TEST_F(FileFaults, WritingOverTakesItsRoomFirst) {
  // The bytes fit beside, but then no longer into the file.
  EXPECT_EQ(reasonUnder({.renameRefuses = EBUSY, .room = after.size()}), ENOSPC);
  expectAsItWas();
}

TEST_F(FileFaults, WritingOverWorksWhereNoRoomIsPromised) {
  EXPECT_EQ(reasonUnder({.folderRefuses = EACCES, .promisesNoRoom = true}), 0);
  expectReplaced();
}

TEST_F(FileFaults, WhatIsWrittenOverIsPutOnDisk) {
  EXPECT_EQ(reasonUnder({.folderRefuses = EACCES, .syncRefuses = EIO}), EIO);
}

TEST_F(FileFaults, WithoutAFolderForTemporaryFilesMemoryWillDo) {
  const char* const known = std::getenv("TMPDIR");
  const std::string mine = known == nullptr ? "" : known;
  setenv("TMPDIR", "/nonexistent", 1);
  const int reason = reasonUnder({.folderRefuses = EACCES});
  if (known == nullptr) {
    unsetenv("TMPDIR");
  } else {
    setenv("TMPDIR", mine.c_str(), 1);
  }
  EXPECT_EQ(reason, 0);
  expectReplaced();
}

}  // namespace
}  // namespace veyruna
