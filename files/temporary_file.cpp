#include "files/temporary_file.h"

#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <random>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

namespace veyruna::files {

namespace {

constexpr mode_t aNewFiles = 0666;  // less what the user's umask takes away
constexpr mode_t onlyMine = 0600;

/// A path in the folder that nobody has used.
std::string freshName(const std::string& folder) {
  std::random_device random;
  const std::uint64_t number = (std::uint64_t{random()} << 32U) | random();
  std::string digits(16, '0');
  std::to_chars(digits.data(), digits.data() + digits.size(), number, 16);
  return folder + "/.veyruna-" + digits;
}

/// Whether an open() failed because the file system has no files without a name.
bool needsName(int reason) {
  return reason == EOPNOTSUPP || reason == EISDIR || reason == ENOENT;
}

/// What a file without a name has its name from, once it is to have one.
std::string pathOf(const Descriptor& file) {
  return "/proc/self/fd/" + std::to_string(file.number());
}

std::error_code lastError() {
  return {errno, std::generic_category()};
}

}  // namespace

TemporaryFile::TemporaryFile(Descriptor file, std::string folder, std::string name)
    : file_(std::move(file)), folder_(std::move(folder)), name_(std::move(name)) {}

TemporaryFile::TemporaryFile(TemporaryFile&& other) noexcept
    : file_(std::move(other.file_)),
      folder_(std::move(other.folder_)),
      name_(std::exchange(other.name_, {})) {}

TemporaryFile::~TemporaryFile() {
  if (!name_.empty()) {
    unlink(name_.c_str());
  }
}

TemporaryFile TemporaryFile::inFolder(const std::string& folder) {
  const int number = open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, aNewFiles);
  if (number >= 0 || !needsName(errno)) {
    Descriptor unnamed(number);
    if (access(pathOf(unnamed).c_str(), F_OK) == 0) {
      return {std::move(unnamed), folder, ""};
    }
    // Nothing is mounted at /proc, as in a bare root: the file would stay without a name.
  }
  const std::string name = freshName(folder);
  return {Descriptor(open(name.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, aNewFiles)), folder,
          name};
}

TemporaryFile TemporaryFile::elsewhere() {
  std::error_code error;
  const std::string folder = std::filesystem::temp_directory_path(error).string();
  const int onDisk = error ? -1 : open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, onlyMine);
  return {Descriptor(onDisk >= 0 ? onDisk : memfd_create("veyruna", MFD_CLOEXEC)), folder, ""};
}

void TemporaryFile::takeOver(const struct stat& existing) const {
  static_cast<void>(fchown(file_.number(), existing.st_uid, existing.st_gid));
  fchmod(file_.number(), existing.st_mode & 0777U);
}

std::error_code TemporaryFile::becomes(const std::string& target) {
  if (name_.empty()) {
    // A link replaces nothing: where there is no such file yet, this is already all.
    if (isLinkedAs(target)) {
      return {};
    }
    if (errno != EEXIST) {
      return lastError();
    }
    const std::string name = freshName(folder_);
    if (!isLinkedAs(name)) {
      return lastError();
    }
    name_ = name;
  }
  if (std::rename(name_.c_str(), target.c_str()) != 0) {
    return lastError();
  }
  name_.clear();
  return {};
}

bool TemporaryFile::isLinkedAs(const std::string& path) const {
  return linkat(AT_FDCWD, pathOf(file_).c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0;
}

}  // namespace veyruna::files
