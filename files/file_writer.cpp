#include "files/file_writer.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "files/overwriting.h"

namespace veyruna::files {

namespace {

constexpr std::size_t bufferSize = 65536;

[[noreturn]] void refuse(int reason) {
  throw std::system_error(reason, std::generic_category());
}

/// The file a path means once its links are followed, also where the last one leads to nothing yet.
std::string withLinksFollowed(const std::string& path) {
  constexpr int mostLinks = 40;
  std::filesystem::path target = path;
  std::error_code error;
  for (int links = 0; std::filesystem::is_symlink(target, error); ++links) {
    if (links == mostLinks) {
      refuse(ELOOP);
    }
    const std::filesystem::path next = std::filesystem::read_symlink(target, error);
    if (error) {
      throw std::system_error(error);
    }
    target = target.parent_path() / next;  // an absolute `next` stands alone
  }
  return target.string();
}

std::string folderOf(const std::string& path) {
  const std::filesystem::path folder = std::filesystem::path(path).parent_path();
  return folder.empty() ? "." : folder.string();
}

/// Whether it is the folder that lets nothing new in or in place of the old. A file may also be
/// mounted by itself; then it is busy, or on another file system than its folder.
bool isFolderRefusing(const std::error_code& error) {
  const int reason = error.value();
  return reason == EACCES || reason == EPERM || reason == EROFS || reason == EBUSY ||
         reason == EXDEV;
}

/// Puts on disk which files a folder holds. A folder that may not be read, or a file system that
/// cannot do so, is left to the system's own time: what is found there is whole in any case.
void syncFolder(const std::string& folder) {
  const int number = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (number < 0) {
    return;
  }
  const Descriptor opened(number);
  if (fsync(opened.number()) != 0 && errno != EINVAL) {
    throwErrno();
  }
}

}  // namespace

FileWriter::FileWriter(const std::string& path) {
  if (path.empty() || path.find('\0') != std::string::npos) {
    refuse(ENOENT);
  }
  buffer_.reserve(bufferSize);
  target_ = withLinksFollowed(path);
  struct stat existing {};
  isReplacing_ = stat(target_.c_str(), &existing) == 0;
  if (isReplacing_ && !S_ISREG(existing.st_mode)) {
    stream_.emplace(open(target_.c_str(), O_WRONLY | O_CLOEXEC));
    return;
  }
  if (isReplacing_ && faccessat(AT_FDCWD, target_.c_str(), W_OK, AT_EACCESS) != 0) {
    throwErrno();
  }
  try {
    temporary_.emplace(TemporaryFile::inFolder(folderOf(target_)));
  } catch (const std::system_error& error) {
    if (!isReplacing_ || !isFolderRefusing(error.code())) {
      throw;
    }
    isInFolder_ = false;
    temporary_.emplace(TemporaryFile::elsewhere());
  }
  if (isReplacing_ && isInFolder_) {
    temporary_->takeOver(existing);
  }
}

FileWriter::FileWriter(Descriptor stream) : stream_(std::move(stream)) {
  buffer_.reserve(bufferSize);
}

FileWriter FileWriter::toStream(int descriptor) {
  return FileWriter(Descriptor(fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1)));
}

void FileWriter::write(std::string_view bytes) {
  if (buffer_.size() + bytes.size() > bufferSize) {
    flush();
  }
  if (bytes.size() >= bufferSize) {
    writeAll(out(), bytes);
  } else {
    buffer_ += bytes;
  }
}

void FileWriter::finish() {
  flush();
  if (!temporary_) {
    return;
  }
  bool isInPlace = false;
  if (isInFolder_) {
    if (fsync(out().number()) != 0) {
      throwErrno();
    }
    const std::error_code error = temporary_->becomes(target_);
    if (error && !(isReplacing_ && isFolderRefusing(error))) {
      throw std::system_error(error);
    }
    isInPlace = !error;
  }
  if (isInPlace) {
    syncFolder(folderOf(target_));
  } else {
    overwrite(target_, out());
  }
  temporary_.reset();
}

const Descriptor& FileWriter::out() const {
  return temporary_ ? temporary_->file() : *stream_;
}

void FileWriter::flush() {
  writeAll(out(), buffer_);
  buffer_.clear();
}

std::error_code writeWholeFile(const std::string& path, std::string_view bytes) {
  try {
    FileWriter writer(path);
    writer.write(bytes);
    writer.finish();
    return {};
  } catch (const std::system_error& error) {
    return error.code();
  }
}

}  // namespace veyruna::files
