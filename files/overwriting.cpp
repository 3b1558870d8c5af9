#include "files/overwriting.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace veyruna::files {

namespace {

off_t sizeOf(const Descriptor& file) {
  struct stat status {};
  if (fstat(file.number(), &status) != 0) {
    throwErrno();
  }
  return status.st_size;
}

void setSize(const Descriptor& file, off_t size) {
  if (ftruncate(file.number(), size) != 0) {
    throwErrno();
  }
}

/// Some file systems cannot promise room; there the writing itself has to tell.
bool isCannotTell(int reason) {
  return reason == EOPNOTSUPP || reason == EINVAL;
}

void takeRoom(const Descriptor& file, off_t size) {
  const off_t before = sizeOf(file);
  const int reason = size > 0 ? posix_fallocate(file.number(), 0, size) : 0;
  if (reason != 0 && !isCannotTell(reason)) {
    setSize(file, before);
    throw std::system_error(reason, std::generic_category());
  }
}

}  // namespace

void overwrite(const std::string& target, const Descriptor& source) {
  const Descriptor file(open(target.c_str(), O_WRONLY | O_CLOEXEC));
  const off_t size = sizeOf(source);
  takeRoom(file, size);
  std::array<char, 65536> piece{};
  for (off_t done = 0; done < size;) {
    const ssize_t count = pread(source.number(), piece.data(), piece.size(), done);
    if (count <= 0) {
      throw std::system_error(count < 0 ? errno : EIO, std::generic_category());
    }
    writeAll(file, {piece.data(), static_cast<std::size_t>(count)});
    done += count;
  }
  setSize(file, size);
  if (fsync(file.number()) != 0) {
    throwErrno();
  }
}

}  // namespace veyruna::files
