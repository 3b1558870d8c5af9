#include "cli/written/streams.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace veyruna::cli {

void prepareStreams() {
  for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
    if (fcntl(stream, F_GETFD) == -1) {
      open("/dev/null", O_RDONLY);
    }
  }
  std::signal(SIGPIPE, SIG_DFL);
}

}  // namespace veyruna::cli
