#include "cli/typed/named_file.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <stdexcept>
#include <system_error>
#include <unistd.h>

#include "files/descriptor.h"
#include "words/quoting.h"

namespace veyruna::cli {

namespace {

/// A descriptor of its own, which can be closed.
files::Descriptor opened(const std::string& file) {
  return files::Descriptor(file == "-" ? fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1)
                                       : open(file.c_str(), O_RDONLY | O_CLOEXEC));
}

std::string contentOf(const files::Descriptor& file, std::size_t mostBytes) {
  std::string content;
  std::array<char, 65536> piece{};
  for (;;) {
    const ssize_t count = read(file.number(), piece.data(), piece.size());
    if (count == 0) {
      return content;
    }
    if (count < 0 && errno != EINTR) {
      files::throwErrno();
    }
    content.append(piece.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
    if (content.size() > mostBytes) {
      throw std::system_error(EFBIG, std::generic_category());
    }
  }
}

}  // namespace

std::string contentOfFile(const std::string& file, std::size_t mostBytes) {
  try {
    return contentOf(opened(file), mostBytes);
  } catch (const std::system_error& error) {
    throw std::runtime_error("cannot read " + nameOfFile(file) + ": " + error.code().message());
  }
}

std::string nameOfFile(const std::string& file) {
  return file == "-" ? "standard input" : words::inQuotes(file);
}

}  // namespace veyruna::cli
