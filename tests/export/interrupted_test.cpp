// Whatever comes between, an export in any form leaves the old file or the new one, whole: a sudden
// end of the program, several programs at once, a full disk, a folder or disk that takes nothing.
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <random>
#include <sys/wait.h>
#include <thread>

#include "tests/export/two_exports.h"
#include "tests/model/disk.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using documents::Form;
using tests::bytesIn;
using tests::Folder;
using tests::reasonOf;
using tests::writeBytes;

/// Starts export_child and waits until it is at work.
pid_t exportingChild(Form form, const QString& path, const char* times) {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) {
    throw std::runtime_error("no pipe for the child");
  }
  const QByteArray file = QFile::encodeName(path);
  const std::string formName(documents::formEntry(form).extension);
  const pid_t child = fork();
  if (child == 0) {
    dup2(ends[1], STDOUT_FILENO);
    execl(VEYRUNA_EXPORT_CHILD, VEYRUNA_EXPORT_CHILD, formName.c_str(), file.constData(), times,
          nullptr);
    _exit(127);
  }
  close(ends[1]);
  char sign = 0;
  const bool isAtWork = read(ends[0], &sign, 1) == 1;
  close(ends[0]);
  if (!isAtWork) {
    throw std::runtime_error("the child does not export");
  }
  return child;
}

class Interrupted : public testing::TestWithParam<Form> {
 protected:
  const Form form = GetParam();
  const tests::TwoExports exports{form};
  const QByteArray before = "what was here before";
};

TEST_P(Interrupted, KilledItLeavesTheOldFileOrTheNewOne) {
  std::mt19937 random(20);
  int written = 0;
  for (int run = 0; run < tests::times(15, 300); ++run) {
    const Folder folder;
    const QString path = folder / u"sky"_s;
    writeBytes(path, before);
    const pid_t child = exportingChild(form, path, nullptr);
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 60'000));
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status));
    const QByteArray left = bytesIn(path);
    EXPECT_TRUE(left == before || exports.isOne(left)) << left.size() << " bytes";
    written += left == before ? 0 : 1;
  }
  std::printf("%d times the new file\n", written);
}

TEST_P(Interrupted, SeveralAtOnceLeaveOneOfTheirFiles) {
  const Folder folder;
  const QString path = folder / u"sky"_s;
  std::vector<pid_t> children;
  for (int i = 0; i < 4; ++i) {
    children.push_back(exportingChild(form, path, "5"));
  }
  for (const pid_t child : children) {
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
  }
  EXPECT_TRUE(exports.isOne(bytesIn(path)));
  EXPECT_EQ(folder.names(), QStringList{u"sky"_s});
}

TEST_P(Interrupted, AFullDiskLeavesTheOldFile) {
  const tests::SmallFileSystem disk;
  if (!disk.isMounted()) {
    GTEST_SKIP() << "a full file system: a small one cannot be mounted here";
  }
  const QString path = disk / u"sky"_s;
  writeBytes(path, before);
  for (const int blocksLeft : {0, 1, 3}) {
    disk.fill(blocksLeft);
    EXPECT_EQ(exports.save(0, path), reasonOf(ENOSPC)) << blocksLeft;
    EXPECT_EQ(bytesIn(path), before);
    EXPECT_EQ(Folder::namesIn(disk.path()).size(), 2);  // the file and what fills the disk
    disk.empty();
  }
}

TEST_P(Interrupted, AReadOnlyDiskLeavesTheOldFile) {
  const tests::SmallFileSystem disk;
  if (!disk.isMounted()) {
    GTEST_SKIP() << "a read-only file system: one cannot be mounted here";
  }
  const QString path = disk / u"sky"_s;
  writeBytes(path, before);
  ASSERT_TRUE(disk.makeReadOnly());
  EXPECT_EQ(exports.save(0, path), reasonOf(EROFS));
  EXPECT_EQ(exports.save(0, disk / u"new"_s), reasonOf(EROFS));
  EXPECT_EQ(bytesIn(path), before);
}

TEST_P(Interrupted, AReadOnlyFolderTakesNothingNew) {
  const Folder folder;
  tests::giveToNobody(folder.path());
  tests::setMode(folder.path(), 0555);
  {
    const tests::AsNobody nobody;
    ASSERT_TRUE(nobody.holds());
    EXPECT_EQ(exports.save(0, folder / u"sky"_s), reasonOf(EACCES));
  }
  tests::setMode(folder.path(), 0755);
  EXPECT_EQ(folder.names(), QStringList());
}

INSTANTIATE_TEST_SUITE_P(Forms, Interrupted,
                         testing::Values(Form::svg, Form::html, Form::pdf, Form::png),
                         [](const auto& test) {
                           return std::string(documents::formEntry(test.param).name);
                         });

}  // namespace
}  // namespace veyruna
