// Documents in files: there whole, or not at all.
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "cli/program/command_line.h"
#include "tests/cli/process.h"
#include "tests/cli/scratch_folder.h"
#include "tests/support/reference_case.h"

namespace veyruna {
namespace {

namespace fs = std::filesystem;
using tests::fileContent;
using tests::namesIn;
using tests::Outcome;
using tests::run;
using tests::runWith;
using tests::ScratchFolder;
using tests::writeFile;

using Names = std::vector<std::string>;

const std::string before = "what was there before\n";
const std::string document = "258840\n";

/// A run that cannot write `file` says so in one line that quotes it.
void expectNotWritten(const Outcome& outcome, const std::string& file) {
  EXPECT_EQ(outcome.status, cli::writeFailed);
  EXPECT_EQ(outcome.out, "");
  EXPECT_TRUE(outcome.err.starts_with("veyruna: cannot ")) << outcome.err;
  EXPECT_NE(outcome.err.find(file), std::string::npos) << outcome.err;
  EXPECT_EQ(outcome.err.find('\n'), outcome.err.size() - 1) << outcome.err;
}

unsigned modeOf(const std::string& path) {
  struct stat status {};
  EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
  return status.st_mode & 07777U;
}

class Output : public testing::Test {
 protected:
  const ScratchFolder scratch;
  const std::string file = scratch / "document.txt";

  void expectWritten(const Names& arguments) const {
    const Outcome outcome = run({.arguments = arguments, .folder = scratch.path()});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.out + outcome.err, "");
  }
};

TEST_F(Output, MakesAFile) {
  expectWritten({"base-time", "-o", "document.txt"});
  EXPECT_EQ(fileContent(file), document);
  expectWritten({"-o", file, "moment"});
  EXPECT_EQ(fileContent(file), runWith({"moment"}).out);
  expectWritten({"base-time", "-o", "−1 sky [a,b] °.txt"});
  EXPECT_EQ(namesIn(scratch.path()), (Names{"document.txt", "−1 sky [a,b] °.txt"}));
}

TEST_F(Output, AFileMayBeCalledLikeAnOption) {
  expectWritten({"base-time", "-o=--bw"});
  expectWritten({"base-time", "-o-h"});
  expectWritten({"base-time", "-o", "-5"});
  expectWritten({"base-time", "-o", "--unknown"});
  EXPECT_EQ(namesIn(scratch.path()), (Names{"--bw", "--unknown", "-5", "-h"}));
}

TEST_F(Output, ReplacesAFileWholeAndKeepsItsPermissions) {
  for (const unsigned mode : {0600U, 0640U, 0666U, 0755U}) {
    writeFile(file, std::string(100'000, 'x'));
    ASSERT_EQ(chmod(file.c_str(), mode), 0);
    expectWritten({"base-time", "-o", file});
    EXPECT_EQ(fileContent(file), document);
    EXPECT_EQ(modeOf(file), mode);
  }
  EXPECT_EQ(namesIn(scratch.path()), Names{"document.txt"});
}

TEST_F(Output, ANewFilesPermissionsAreThePersons) {
  const mode_t mine = umask(0027);
  expectWritten({"base-time", "-o", file});
  umask(mine);
  EXPECT_EQ(modeOf(file), 0640U);
}

TEST_F(Output, FollowsALink) {
  fs::create_directory(scratch / "elsewhere");
  const std::string target = scratch / "elsewhere/target.txt";
  writeFile(target, before);
  fs::create_symlink("elsewhere/target.txt", file);
  expectWritten({"base-time", "-o", file});
  EXPECT_TRUE(fs::is_symlink(file));
  EXPECT_EQ(fileContent(target), document);
  EXPECT_EQ(namesIn(scratch / "elsewhere"), Names{"target.txt"});
}

TEST_F(Output, FollowsALinkToAFileNotYetThere) {
  fs::create_symlink("target.txt", file);
  expectWritten({"base-time", "-o", file});
  EXPECT_TRUE(fs::is_symlink(file));
  EXPECT_TRUE(fs::exists(scratch / "target.txt"));
}

TEST_F(Output, ALinkToItselfIsNoFile) {
  fs::create_symlink("document.txt", file);
  expectNotWritten(runWith({"base-time", "-o", file}), "\"" + file + "\"");
  EXPECT_TRUE(fs::is_symlink(file));
}

// Devices are written to without the rights of root: a command that replaced them would otherwise
// replace those of this machine.
TEST_F(Output, WritesToADeviceAsItIs) {
  fs::create_symlink("/dev/null", file);
  for (const std::string& device : {std::string("/dev/null"), file}) {
    const Outcome outcome = run({.arguments = {"moment", "-o", device}, .asNobody = true});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.out + outcome.err, "");
  }
  EXPECT_TRUE(fs::is_symlink(file));
}

TEST_F(Output, WritesToAPipeWithAName) {
  ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
  // Open at both ends, so that neither side waits for the other.
  const int reading = open(file.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
  expectWritten({"base-time", "-o", file});
  std::string received(64, '\0');
  const ssize_t count = read(reading, received.data(), received.size());
  close(reading);
  received.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
  EXPECT_EQ(received, document);
  EXPECT_TRUE(fs::is_fifo(file));
}

TEST_F(Output, AFullDeviceIsReported) {
  expectNotWritten(run({.arguments = {"base-time", "-o", "/dev/full"}, .asNobody = true}),
                   "\"/dev/full\": No space left");
  for (const char* const command : {"base-time", "--help", "daily"}) {
    expectNotWritten(run({.arguments = {command}, .standardOutput = "/dev/full"}),
                     "standard output: No space left");
  }
}

TEST_F(Output, AMissingFolderIsReported) {
  for (const char* const name : {"missing/document.txt", "missing/"}) {
    expectNotWritten(runWith({"base-time", "-o", scratch / name}), "\"" + (scratch / name) + "\"");
  }
  EXPECT_EQ(namesIn(scratch.path()), Names{});
}

TEST_F(Output, AFolderIsNoFileAndAFileNoFolder) {
  expectNotWritten(runWith({"base-time", "-o", scratch.path()}), "\"" + scratch.path() + "\"");
  writeFile(file, before);
  expectNotWritten(runWith({"base-time", "-o", file + "/"}), "\"" + file + "/\"");
  expectNotWritten(runWith({"all", "--out", file}), "\"" + file + "\"");
  expectNotWritten(runWith({"all", "--out", file + "/deeper"}), "\"" + file + "/deeper\"");
  EXPECT_EQ(fileContent(file), before);
}

TEST_F(Output, AFolderThatMayNotBeWrittenStaysAsItIs) {
  writeFile(file, before);
  ASSERT_EQ(chmod(scratch.path().c_str(), 0555), 0);
  const std::string newFile = scratch / "new.txt";
  expectNotWritten(run({.arguments = {"base-time", "-o", newFile}, .asNobody = true}),
                   "\"" + newFile + "\": Permission denied");
  expectNotWritten(run({.arguments = {"all", "--out", scratch / "all"}, .asNobody = true}),
                   "\"" + (scratch / "all") + "\"");
  EXPECT_EQ(fileContent(file), before);
  EXPECT_EQ(namesIn(scratch.path()), Names{"document.txt"});
}

TEST_F(Output, AFolderThatTakesNoFilesIsNamedBeforeAnythingIsWritten) {
  ASSERT_EQ(chmod(scratch.path().c_str(), 0555), 0);
  const std::vector<std::vector<std::string>> commands = {
      {"all"}, {"events", "--from", "720-01-01", "--for", "1 month", "--format", "calendarium"}};
  for (std::vector<std::string> arguments : commands) {
    arguments.insert(arguments.end(), {"--out", scratch.path()});
    const Outcome outcome = run({.arguments = arguments, .asNobody = true});
    expectNotWritten(outcome,
                     "cannot write into the folder \"" + scratch.path() + "\": Permission denied");
    EXPECT_EQ(outcome.out, "");
  }
}

TEST_F(Output, AFileThatMayBeWrittenIsThoughItsFolderMayNot) {
  writeFile(file, std::string(100'000, 'x'));
  ASSERT_EQ(chmod(file.c_str(), 0666), 0);
  ASSERT_EQ(chmod(scratch.path().c_str(), 0555), 0);
  const Outcome outcome = run({.arguments = {"base-time", "-o", file}, .asNobody = true});
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(fileContent(file), document);
  EXPECT_EQ(namesIn(scratch.path()), Names{"document.txt"});
}

TEST_F(Output, AFileThatMayNotBeWrittenStaysAsItIs) {
  writeFile(file, before);
  ASSERT_EQ(chmod(file.c_str(), 0444), 0);
  ASSERT_EQ(chmod(scratch.path().c_str(), 0777), 0);
  expectNotWritten(run({.arguments = {"base-time", "-o", file}, .asNobody = true}),
                   "\"" + file + "\"");
  EXPECT_EQ(fileContent(file), before);
  EXPECT_EQ(namesIn(scratch.path()), Names{"document.txt"});
}

TEST_F(Output, AFullDiskLeavesTheOldFile) {
  // A view of the file systems of this process's own, so that nobody else sees the small disk.
  if (unshare(CLONE_NEWNS) != 0 ||
      mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
      mount("none", scratch.path().c_str(), "tmpfs", 0, "size=64k") != 0) {
    GTEST_SKIP() << "a small tmpfs cannot be mounted here";
  }
  writeFile(file, before);
  const Outcome outcome = runWith({"conjunctions", "--rows", "5000", "--step", "1", "-o", file});
  const std::string kept = fileContent(file);
  const Names names = namesIn(scratch.path());
  umount2(scratch.path().c_str(), MNT_DETACH);
  expectNotWritten(outcome, "\"" + file + "\"");
  EXPECT_EQ(kept, before);
  EXPECT_EQ(names, Names{"document.txt"});
}

/// Whether a process has a file open in the folder, with a name or without.
bool hasFileOpenIn(const std::string& folder, pid_t process) {
  std::error_code error;
  for (const auto& entry :
       fs::directory_iterator("/proc/" + std::to_string(process) + "/fd", error)) {
    if (fs::read_symlink(entry.path(), error).string().starts_with(folder)) {
      return true;
    }
  }
  return false;
}

TEST_F(Output, KilledHalfWayItLeavesTheOldFile) {
  writeFile(file, before);
  std::mt19937 random(720);
  for (int i = 0; i < 30; ++i) {
    tests::Process writing(
        {.arguments = {"conjunctions", "--rows", "5000000", "--step", "0.01", "-o", file}});
    while (!hasFileOpenIn(scratch.path(), writing.id())) {
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 30'000));
    writing.kill(SIGKILL);
    EXPECT_EQ(writing.outcome().signal, SIGKILL);
    EXPECT_EQ(fileContent(file), before);
  }
  EXPECT_EQ(namesIn(scratch.path()), Names{"document.txt"});
}

TEST_F(Output, WithoutStandardOutputAllKeepsItsDocumentsWhole) {
  const Outcome outcome =
      run({.arguments = {"all", "--out", scratch.path()}, .closesStandardOutput = true});
  EXPECT_EQ(outcome.signal, 0);
  EXPECT_TRUE(fileContent(scratch / "star-map.svg") == runWith({"star-map"}).out);
}

}  // namespace
}  // namespace veyruna
