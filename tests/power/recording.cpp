// The functions at the end stand before those of the C library in the whole program, because a
// program's own names come first; each asks the system itself and writes down what came of it.
#include "tests/power/recording.h"

#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace veyruna::tests {

namespace {

using Kind = Change::Kind;

/// What is written down, and by which number a file is known.
struct Book {
  std::string folder;
  bool needsNames;
  pid_t thread;
  ino_t folderNumber = 0;
  std::map<ino_t, int> files = {};
  int last = 0;
  std::vector<Change> changes = {};
};

std::unique_ptr<Book> book;

bool isWritingDown() {
  return book && book->thread == gettid();
}

/// What the path names in the folder; empty where it is elsewhere.
std::string nameOf(std::string_view path) {
  const std::string beginning = book->folder + "/";
  const bool isInside =
      path.starts_with(beginning) && path.find('/', beginning.size()) == std::string_view::npos;
  return std::string(isInside ? path.substr(beginning.size()) : std::string_view());
}

int numberOf(ino_t node) {
  const auto found = book->files.find(node);
  return found == book->files.end() ? 0 : found->second;
}

struct stat statusOf(int file) {
  struct stat status {};
  fstat(file, &status);
  return status;
}

bool exists(const char* path) {
  struct stat status {};
  return lstat(path, &status) == 0;
}

void opened(int file, const char* path, int flags, bool wasThere) {
  const bool isUnnamed = (flags & O_TMPFILE) == O_TMPFILE;
  const std::string name = nameOf(path);
  if (isUnnamed ? book->folder != path : name.empty()) {
    return;
  }
  const ino_t node = statusOf(file).st_ino;
  if (isUnnamed || !wasThere) {
    book->files[node] = ++book->last;  // also where the system uses the number of a file again
    book->changes.push_back({.kind = Kind::create, .file = book->last, .name = name});
  } else if ((flags & O_TRUNC) != 0) {
    book->changes.push_back({.kind = Kind::resize, .file = numberOf(node)});
  }
}

void written(int file, std::int64_t offset, const void* bytes, ssize_t count) {
  const int number = numberOf(statusOf(file).st_ino);
  if (number != 0 && count > 0) {
    book->changes.push_back(
        {.kind = Kind::write,
         .file = number,
         .offset = offset,
         .bytes = std::string(static_cast<const char*>(bytes), static_cast<std::size_t>(count))});
  }
}

void synced(int file) {
  const ino_t node = statusOf(file).st_ino;
  if (node == book->folderNumber) {
    book->changes.push_back({.kind = Kind::syncFolder});
  } else if (const int number = numberOf(node); number != 0) {
    book->changes.push_back({.kind = Kind::sync, .file = number});
  }
}

void resized(int file, std::int64_t size) {
  if (const int number = numberOf(statusOf(file).st_ino); number != 0) {
    book->changes.push_back({.kind = Kind::resize, .file = number, .offset = size});
  }
}

void named(const char* path) {
  struct stat status {};
  if (const std::string name = nameOf(path); !name.empty() && stat(path, &status) == 0) {
    book->changes.push_back({.kind = Kind::name, .file = numberOf(status.st_ino), .name = name});
  }
}

void renamed(const char* from, const char* to) {
  const std::string source = nameOf(from);
  const std::string target = nameOf(to);
  if (source.empty() != target.empty()) {
    throw std::logic_error("a file crosses the border of the recorded folder");
  }
  if (!source.empty()) {
    book->changes.push_back({.kind = Kind::rename, .name = target, .from = source});
  }
}

void unnamed(const char* path) {
  if (const std::string name = nameOf(path); !name.empty()) {
    book->changes.push_back({.kind = Kind::unname, .name = name});
  }
}

int openNow(const char* path, int flags, mode_t mode) {
  const bool isUnnamed = (flags & O_TMPFILE) == O_TMPFILE;
  if (isWritingDown() && book->needsNames && isUnnamed) {
    errno = EOPNOTSUPP;
    return -1;
  }
  const bool wasThere = isWritingDown() && exists(path);
  const auto file = static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
  if (isWritingDown() && file >= 0 && (flags & O_ACCMODE) != O_RDONLY) {
    opened(file, path, flags, wasThere);
  }
  return file;
}

int syncNow(long call, int file) {
  const auto outcome = static_cast<int>(syscall(call, file));
  if (isWritingDown() && outcome == 0) {
    synced(file);
  }
  return outcome;
}

int resizeNow(int file, off_t size) {
  const auto outcome = static_cast<int>(syscall(SYS_ftruncate, file, size));
  if (isWritingDown() && outcome == 0) {
    resized(file, size);
  }
  return outcome;
}

/// The last argument of open(), where it has one.
mode_t modeOf(int flags, std::va_list rest) {
  return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE ? va_arg(rest, mode_t) : 0;
}

}  // namespace

std::string wordsOf(const Change& change) {
  const std::string file = " file " + std::to_string(change.file);
  switch (change.kind) {
    case Kind::create:
      return "create" + file + " \"" + change.name + "\"";
    case Kind::write:
      return "write " + std::to_string(change.bytes.size()) + " bytes at " +
             std::to_string(change.offset) + " into" + file;
    case Kind::resize:
      return "resize" + file + " to " + std::to_string(change.offset);
    case Kind::sync:
      return "sync" + file;
    case Kind::syncFolder:
      return "sync the folder";
    case Kind::name:
      return "name" + file + " \"" + change.name + "\"";
    case Kind::rename:
      return "rename \"" + change.from + "\" to \"" + change.name + "\"";
    case Kind::unname:
      return "remove \"" + change.name + "\"";
  }
  return "";
}

Recording::Recording(const std::string& folder, bool needsNames) {
  if (book) {
    throw std::logic_error("one recording at a time");
  }
  auto fresh =
      std::make_unique<Book>(Book{.folder = folder, .needsNames = needsNames, .thread = gettid()});
  struct stat status {};
  stat(folder.c_str(), &status);
  fresh->folderNumber = status.st_ino;
  for (const auto& [name, content] : filesIn(folder)) {
    stat((folder + "/" + name).c_str(), &status);
    fresh->files[status.st_ino] = ++fresh->last;
  }
  book = std::move(fresh);
}

Recording::~Recording() {
  book.reset();
}

const std::vector<Change>& Recording::changes() const {
  return book->changes;
}

Files filesIn(const std::string& folder) {
  Files files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    std::ostringstream content;
    content << std::ifstream(entry.path(), std::ios::binary).rdbuf();
    files[entry.path().filename().string()] = content.str();
  }
  return files;
}

}  // namespace veyruna::tests

using veyruna::tests::isWritingDown;

extern "C" {

int open(const char* path, int flags, ...) {
  std::va_list rest;
  va_start(rest, flags);
  const mode_t mode = veyruna::tests::modeOf(flags, rest);
  va_end(rest);
  return veyruna::tests::openNow(path, flags, mode);
}

int open64(const char* path, int flags, ...) {
  std::va_list rest;
  va_start(rest, flags);
  const mode_t mode = veyruna::tests::modeOf(flags, rest);
  va_end(rest);
  return veyruna::tests::openNow(path, flags, mode);
}

ssize_t write(int file, const void* bytes, std::size_t count) {
  const off_t offset = isWritingDown() ? lseek(file, 0, SEEK_CUR) : 0;
  const ssize_t done = syscall(SYS_write, file, bytes, count);
  if (isWritingDown()) {
    veyruna::tests::written(file, offset, bytes, done);
  }
  return done;
}

int fsync(int file) {
  return veyruna::tests::syncNow(SYS_fsync, file);
}

int fdatasync(int file) {
  return veyruna::tests::syncNow(SYS_fdatasync, file);
}

int ftruncate(int file, off_t size) noexcept {
  return veyruna::tests::resizeNow(file, size);
}

int ftruncate64(int file, off64_t size) noexcept {
  return veyruna::tests::resizeNow(file, size);
}

int rename(const char* from, const char* to) noexcept {
  const auto outcome = static_cast<int>(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
  if (isWritingDown() && outcome == 0) {
    veyruna::tests::renamed(from, to);
  }
  return outcome;
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned flags) noexcept {
  const auto outcome =
      static_cast<int>(syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
  if (isWritingDown() && outcome == 0) {
    veyruna::tests::renamed(from, to);
  }
  return outcome;
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
  const auto outcome = static_cast<int>(syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
  if (isWritingDown() && outcome == 0) {
    veyruna::tests::named(to);
  }
  return outcome;
}

int unlink(const char* path) noexcept {
  const auto outcome = static_cast<int>(syscall(SYS_unlinkat, AT_FDCWD, path, 0));
  if (isWritingDown() && outcome == 0) {
    veyruna::tests::unnamed(path);
  }
  return outcome;
}

}  // extern "C"
