#include "files/descriptor.h"

#include <cerrno>
#include <poll.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace veyruna::files {

namespace {

/// Waits until a stream that does not block takes more.
void waitUntilWritable(int descriptor) {
  pollfd waiting{descriptor, POLLOUT, 0};
  poll(&waiting, 1, -1);
}

}  // namespace

Descriptor::Descriptor(int number) : number_(number) {
  if (number_ < 0) {
    throwErrno();
  }
}

Descriptor::Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}

Descriptor::~Descriptor() {
  if (number_ >= 0) {
    close(number_);
  }
}

void throwErrno() {
  throw std::system_error(errno, std::generic_category());
}

void writeAll(const Descriptor& file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(file.number(), bytes.data(), bytes.size());
    if (written >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno == EAGAIN) {
      waitUntilWritable(file.number());
    } else if (errno != EINTR) {
      throwErrno();
    }
  }
}

}  // namespace veyruna::files
