// A file is there whole, or not at all, whatever it is called.
#include "files/file_writer.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/files/faulty_system.h"
#include "tests/files/files_fixture.h"

namespace veyruna {
namespace {

namespace fs = std::filesystem;
using files::FileWriter;
using files::writeWholeFile;
using tests::before;
using tests::fileContent;
using tests::Files;
using tests::longer;
using tests::modeOf;
using tests::namesIn;
using tests::shorter;
using tests::writeFile;

using Names = std::vector<std::string>;

TEST_F(Files, AreMadeAndReplacedWhole) {
  for (const std::string& bytes : {longer, std::string(), shorter}) {
    EXPECT_EQ(writeWholeFile(file, bytes), std::error_code());
    EXPECT_TRUE(fileContent(file) == bytes);
  }
  EXPECT_EQ(namesIn(folder.path()), Names{"file.txt"});
}

TEST_F(Files, ComeInPiecesOfEverySize) {
  std::string expected;
  FileWriter writer(file);
  for (const std::size_t size : {0U, 1U, 65'535U, 65'536U, 7U, 65'537U, 300'000U, 3U}) {
    const std::string piece(size, static_cast<char>('a' + static_cast<int>(size % 26)));
    writer.write(piece);
    expected += piece;
  }
  EXPECT_EQ(namesIn(folder.path()), Names{});
  writer.finish();
  EXPECT_TRUE(fileContent(file) == expected);
  EXPECT_EQ(namesIn(folder.path()), Names{"file.txt"});
}

TEST_F(Files, AreAsTheyWereUntilTheyAreFinished) {
  writeFile(file, before);
  {
    FileWriter writer(file);
    writer.write(longer);
    EXPECT_EQ(fileContent(file), before);
  }
  EXPECT_EQ(fileContent(file), before);
  EXPECT_EQ(namesIn(folder.path()), Names{"file.txt"});
}

TEST_F(Files, MayBeWrittenSideBySide) {
  for (const bool needsNames : {false, true}) {
    const tests::FaultySystem system({.needsNames = needsNames});
    FileWriter one(file);
    FileWriter other(folder / "other.txt");
    FileWriter moved = std::move(one);
    moved.write("one");
    other.write("other");
    other.finish();
    moved.finish();
    EXPECT_EQ(fileContent(file), "one");
    EXPECT_EQ(fileContent(folder / "other.txt"), "other");
    EXPECT_EQ(namesIn(folder.path()), (Names{"file.txt", "other.txt"}));
  }
}

TEST_F(Files, AreOnDiskBeforeTheyTakeTheirPlaceAndThenSoIsThat) {
  writeFile(file, before);
  const tests::FaultySystem watched({});
  EXPECT_EQ(writeWholeFile(file, longer), std::error_code());
  EXPECT_TRUE(tests::FaultySystem::syncedBeforeRename());
  EXPECT_EQ(writeWholeFile(folder / "new.txt", longer), std::error_code());
  EXPECT_EQ(tests::FaultySystem::syncs(), 4);  // each file, and each time the folder
}

TEST_F(Files, KeepTheirPermissions) {
  for (const unsigned mode : {0600U, 0640U, 0666U, 0755U}) {
    writeFile(file, longer);
    ASSERT_EQ(chmod(file.c_str(), mode), 0);
    EXPECT_EQ(writeWholeFile(file, shorter), std::error_code());
    EXPECT_EQ(modeOf(file), mode);
  }
}

TEST_F(Files, ThatAreNewHaveThePersonsPermissions) {
  const mode_t mine = umask(0027);
  EXPECT_EQ(writeWholeFile(file, shorter), std::error_code());
  {
    const tests::FaultySystem system({.needsNames = true});
    EXPECT_EQ(writeWholeFile(folder / "named.txt", shorter), std::error_code());
  }
  umask(mine);
  EXPECT_EQ(modeOf(file), 0640U);
  EXPECT_EQ(modeOf(folder / "named.txt"), 0640U);
}

TEST_F(Files, AreWhereTheirLinksLead) {
  fs::create_directory(folder / "elsewhere");
  const std::string target = folder / "elsewhere/target.txt";
  writeFile(target, before);
  fs::create_symlink("elsewhere/target.txt", file);
  fs::create_symlink(file, folder / "absolute");
  fs::create_symlink("not yet.txt", folder / "dangling");
  EXPECT_EQ(writeWholeFile(folder / "absolute", shorter), std::error_code());
  EXPECT_EQ(fileContent(target), shorter);
  EXPECT_TRUE(fs::is_symlink(file));
  EXPECT_TRUE(fs::is_symlink(folder / "absolute"));
  EXPECT_EQ(writeWholeFile(folder / "dangling", shorter), std::error_code());
  EXPECT_TRUE(fs::is_symlink(folder / "dangling"));
  EXPECT_EQ(fileContent(folder / "not yet.txt"), shorter);
  EXPECT_EQ(namesIn(folder / "elsewhere"), Names{"target.txt"});

  fs::create_symlink("itself", folder / "itself");
  EXPECT_EQ(writeWholeFile(folder / "itself", shorter).value(), ELOOP);
}

TEST_F(Files, MayHaveNamesOfEveryLength) {
  for (std::size_t length = 230; length <= 255; ++length) {
    for (const bool needsNames : {false, true}) {
      const tests::FaultySystem system({.needsNames = needsNames});
      const std::string path = folder / std::string(length, 'x');
      EXPECT_EQ(writeWholeFile(path, before), std::error_code()) << length;
      EXPECT_EQ(writeWholeFile(path, shorter), std::error_code()) << length;
      EXPECT_EQ(fileContent(path), shorter);
      fs::remove(path);
    }
  }
  EXPECT_EQ(writeWholeFile(folder / std::string(256, 'x'), shorter).value(), ENAMETOOLONG);
  EXPECT_EQ(namesIn(folder.path()), Names{});
}

TEST_F(Files, MayBeNamedFromWhereTheProgramStands) {
  const fs::path home = fs::current_path();
  fs::current_path(folder.path());
  const std::error_code error = writeWholeFile("−1 sky [a,b] °.txt", shorter);
  fs::current_path(home);
  EXPECT_EQ(error, std::error_code());
  EXPECT_EQ(fileContent(folder / "−1 sky [a,b] °.txt"), shorter);
}

TEST_F(Files, AreRefusedWithTheReason) {
  writeFile(file, before);
  EXPECT_EQ(writeWholeFile("", shorter).value(), ENOENT);
  EXPECT_EQ(writeWholeFile(std::string("a\0b", 3), shorter).value(), ENOENT);
  EXPECT_EQ(writeWholeFile(folder / "missing/file.txt", shorter).value(), ENOENT);
  EXPECT_EQ(writeWholeFile(folder / "missing/", shorter).value(), ENOENT);
  EXPECT_EQ(writeWholeFile(folder.path(), shorter).value(), EISDIR);
  EXPECT_EQ(writeWholeFile(file + "/", shorter).value(), ENOTDIR);
  EXPECT_EQ(writeWholeFile(file + "/deeper", shorter).value(), ENOTDIR);
  EXPECT_EQ(writeWholeFile(folder.path(), shorter).message(),
            std::generic_category().message(EISDIR));  // in the language of the system
  EXPECT_EQ(fileContent(file), before);
  EXPECT_EQ(namesIn(folder.path()), Names{"file.txt"});
}

TEST_F(Files, ThatAreDevicesOrPipesAreWrittenAsTheyAre) {
  ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
  const int reading = open(file.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
  EXPECT_EQ(writeWholeFile(file, shorter), std::error_code());
  std::string received(64, '\0');
  const ssize_t count = read(reading, received.data(), received.size());
  close(reading);
  received.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
  EXPECT_EQ(received, shorter);
  EXPECT_TRUE(fs::is_fifo(file));

  const tests::AsNobody nobody;  // root could replace the machine's own devices
  ASSERT_TRUE(nobody.holds());
  EXPECT_EQ(writeWholeFile("/dev/null", longer), std::error_code());
  EXPECT_EQ(writeWholeFile("/dev/full", longer).value(), ENOSPC);
}

TEST(Stream, StaysOpenAndTakesEverythingThoughItDoesNotBlock) {
  std::array<int, 2> ends{};
  ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK), 0);
  const pid_t reader = fork();
  if (reader == 0) {
    close(ends[1]);
    fcntl(ends[0], F_SETFL, 0);
    std::size_t total = 0;
    std::array<char, 4096> piece{};
    for (ssize_t count = 1; count > 0;) {
      count = read(ends[0], piece.data(), piece.size());
      total += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    _exit(total == longer.size() + shorter.size() ? 0 : 1);
  }
  close(ends[0]);
  {
    FileWriter stream = FileWriter::toStream(ends[1]);
    stream.write(longer);
    stream.write(shorter);
    stream.finish();
  }
  EXPECT_EQ(fcntl(ends[1], F_GETFD), FD_CLOEXEC);
  close(ends[1]);
  int status = -1;
  waitpid(reader, &status, 0);
  EXPECT_EQ(status, 0);
  EXPECT_THROW(FileWriter::toStream(ends[1]), std::system_error);
}

}  // namespace
}  // namespace veyruna
