#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace veyruna::tests {

/// How the command is started.
struct Invocation {
  std::vector<std::string> arguments = {};
  std::vector<std::string> environment = {};  ///< "NAME=text", over what the tests run under
  std::string folder = {};                    ///< where it works; the tests' own where empty
  std::string standardInput = "/dev/null";    ///< an existing file
  std::string standardOutput = {};            ///< an existing file; a pipe where empty
  bool closesStandardOutput = false;          ///< it starts with none at all
  bool outputOnTerminal = false;              ///< standard output is a terminal, not a pipe
  bool errorsOnTerminal = false;              ///< standard error is a terminal, not a pipe
  bool ignoresPipeSignal = false;             ///< as under a parent that had SIGPIPE ignored
  bool asNobody = false;                      ///< without the rights of root, where the tests are
  std::size_t addressSpace = 0;               ///< bytes it may map; 0 for no limit
  std::string program = {};                   ///< a copy of it; the built one where empty
};

/// How it ended and what it wrote.
struct Outcome {
  std::string out;
  std::string err;
  int status = -1;  ///< exit status, or −1 where a signal ended it
  int signal = 0;   ///< the signal that ended it, or 0
};

/// One run of the built command. What still runs at the end of its life is killed.
class Process {
 public:
  explicit Process(const Invocation& invocation);
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;
  ~Process();

  [[nodiscard]] pid_t id() const { return id_; }

  /// Reads standard output until its first line is whole and closes the pipe.
  std::string firstLineThenClose();

  /// What comes on standard error within the time, until `wanted` has been seen in it.
  std::string errorsWithin(int milliseconds, const std::string& wanted);

  void kill(int signal) const;

  /// Waits for the end. Throws where two minutes are not enough.
  Outcome outcome();

 private:
  pid_t id_ = -1;
  int out_ = -1;
  int err_ = -1;
  Outcome outcome_;
};

/// Where the built command is; what draws for it stands in the same folder.
std::string programPath();

Outcome run(const Invocation& invocation);
Outcome runWith(const std::vector<std::string>& arguments);

/// "--year 720 moment" as its words.
std::vector<std::string> words(const std::string& text);

}  // namespace veyruna::tests
