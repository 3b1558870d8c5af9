#include "cli/document_writer.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "cli/errors.h"
#include "cli/quoting.h"

namespace veyruna::cli {

namespace {

constexpr std::size_t bufferSize = 65536;

[[noreturn]] void failToWrite(const std::string& name, int reason) {
  throw WriteError("cannot write " + name + ": " + std::strerror(reason));
}

/// The file a path means once its links are followed, also where the last one leads to nothing yet.
std::string withLinksFollowed(const std::string& path, const std::string& name) {
  constexpr int mostLinks = 40;
  std::filesystem::path target = path;
  std::error_code error;
  for (int links = 0; std::filesystem::is_symlink(target, error); ++links) {
    if (links == mostLinks) {
      failToWrite(name, ELOOP);
    }
    const std::filesystem::path next = std::filesystem::read_symlink(target, error);
    if (error) {
      failToWrite(name, error.value());
    }
    target = target.parent_path() / next;  // an absolute `next` stands alone
  }
  return target.string();
}

/// Standard output under one of its names in the file system: opened anew, it would begin at the
/// start of the file that a shell appends to.
bool isStandardOutput(std::string_view path) {
  return path == "/dev/stdout" || path == "/dev/fd/1" || path == "/proc/self/fd/1";
}

/// Waits until a stream that does not block takes more.
void waitUntilWritable(int descriptor) {
  pollfd waiting{descriptor, POLLOUT, 0};
  poll(&waiting, 1, -1);
}

}  // namespace

DocumentWriter::DocumentWriter(int descriptor, std::string name,
                               std::optional<Replacement> replacement)
    : descriptor_(descriptor), name_(std::move(name)), replacement_(std::move(replacement)) {
  buffer_.reserve(bufferSize);
}

DocumentWriter::DocumentWriter(DocumentWriter&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, -1)),
      name_(std::move(other.name_)),
      replacement_(std::exchange(other.replacement_, std::nullopt)),
      buffer_(std::move(other.buffer_)) {}

DocumentWriter::~DocumentWriter() {
  if (descriptor_ > STDERR_FILENO) {
    close(descriptor_);
  }
  if (replacement_ && replacement_->isNamed) {
    unlink(replacement_->temporary.c_str());
  }
}

DocumentWriter DocumentWriter::toStandardOutput() {
  return {STDOUT_FILENO, "standard output", std::nullopt};
}

DocumentWriter DocumentWriter::toFile(const std::string& path) {
  const std::string name = inQuotes(path);
  if (path.empty() || path.find('\0') != std::string::npos) {
    failToWrite(name, ENOENT);
  }
  if (isStandardOutput(path)) {
    return toStandardOutput();
  }
  const std::string target = withLinksFollowed(path, name);
  struct stat existing {};
  const bool exists = stat(target.c_str(), &existing) == 0;
  if (exists && !S_ISREG(existing.st_mode)) {
    const int device = open(target.c_str(), O_WRONLY | O_CLOEXEC);
    if (device < 0) {
      failToWrite(name, errno);
    }
    return {device, name, std::nullopt};
  }
  if (exists && access(target.c_str(), W_OK) != 0) {
    failToWrite(name, errno);
  }

  const std::filesystem::path folder = std::filesystem::path(target).parent_path();
  const std::string temporary =
      (folder / (".veyruna-" + std::to_string(getpid()) + ".tmp")).string();
  const std::string folderName = folder.empty() ? "." : folder.string();
  // A file without a name vanishes with the process, however that ends; where the file system has
  // none, a named one is removed by the destructor.
  bool isNamed = false;
  int file = open(folderName.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0666);
  if (file < 0 && (errno == EOPNOTSUPP || errno == EISDIR || errno == ENOENT)) {
    unlink(temporary.c_str());
    file = open(temporary.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0666);
    isNamed = file >= 0;
  }
  if (file < 0) {
    failToWrite(name, errno);
  }
  if (exists) {
    // The file stays whose it was, as far as this user may give it away.
    static_cast<void>(fchown(file, existing.st_uid, existing.st_gid));
    fchmod(file, existing.st_mode & 0777U);
  }
  return {file, name, Replacement{target, temporary, isNamed}};
}

void DocumentWriter::write(std::string_view text) {
  buffer_ += text;
  if (buffer_.size() >= bufferSize) {
    flush();
  }
}

void DocumentWriter::finish() {
  flush();
  if (replacement_) {
    putInPlace(*replacement_);
    replacement_.reset();
  }
}

void DocumentWriter::flush() {
  std::string_view rest = buffer_;
  while (!rest.empty()) {
    const ssize_t written = ::write(descriptor_, rest.data(), rest.size());
    if (written < 0) {
      if (errno == EINTR) {
        continue;
      }
      if (errno == EAGAIN) {
        waitUntilWritable(descriptor_);
        continue;
      }
      fail();
    }
    rest.remove_prefix(static_cast<std::size_t>(written));
  }
  buffer_.clear();
}

void DocumentWriter::putInPlace(Replacement& replacement) {
  if (fsync(descriptor_) != 0) {
    fail();
  }
  if (!replacement.isNamed) {
    const std::string unnamed = "/proc/self/fd/" + std::to_string(descriptor_);
    unlink(replacement.temporary.c_str());
    if (linkat(AT_FDCWD, unnamed.c_str(), AT_FDCWD, replacement.temporary.c_str(),
               AT_SYMLINK_FOLLOW) != 0) {
      fail();
    }
    replacement.isNamed = true;
  }
  if (std::rename(replacement.temporary.c_str(), replacement.target.c_str()) != 0) {
    fail();
  }
}

void DocumentWriter::fail() const {
  failToWrite(name_, errno);
}

}  // namespace veyruna::cli
