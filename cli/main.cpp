#include <csignal>
#include <string>
#include <vector>

#include "cli/command_line.h"

int main(int argc, char** argv) {
  // A reader that has seen enough closes the pipe; that ends the command quietly, even where the
  // parent process had the signal ignored.
  std::signal(SIGPIPE, SIG_DFL);
  return veyruna::cli::runCommandLine(
      std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc));
}
