// The command that writes what needs no drawing, and starts quickly.
#include <string>
#include <vector>

#include "cli/program/command_line.h"
#include "cli/written/streams.h"

int main(int argc, char** argv) {
  veyruna::cli::prepareStreams();
  return veyruna::cli::runCommandLine(
      std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc));
}
