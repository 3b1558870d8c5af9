#include <csignal>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <vector>

#include "cli/command_line.h"

namespace {

/// A document must never be opened under the number of a standard stream that came in closed: what
/// is then written to that stream would land in it. Such a stream is opened to nothing, read-only,
/// so that writing to it still fails.
void occupyClosedStreams() {
  for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
    if (fcntl(stream, F_GETFD) == -1) {
      open("/dev/null", O_RDONLY);
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  occupyClosedStreams();
  // A reader that has seen enough closes the pipe; that ends the command quietly, even where the
  // parent process had the signal ignored.
  std::signal(SIGPIPE, SIG_DFL);
  return veyruna::cli::runCommandLine(
      std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc));
}
