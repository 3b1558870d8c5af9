#include "tests/cli/process.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <grp.h>
#include <poll.h>
#include <sstream>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace veyruna::tests {

namespace {

constexpr uid_t nobody = 65534;
constexpr int launchFailed = 125;

struct Ends {
  int reading = -1;
  int writing = -1;
};

void require(bool holds, const char* what) {
  if (!holds) {
    throw std::runtime_error(std::string("cannot start the command: ") + what);
  }
}

Ends newPipe() {
  std::array<int, 2> ends{};
  require(pipe2(ends.data(), O_CLOEXEC) == 0, "pipe");
  return {ends[0], ends[1]};
}

Ends newTerminal() {
  const int mine = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
  require(mine >= 0 && grantpt(mine) == 0 && unlockpt(mine) == 0, "terminal");
  const int theirs = open(ptsname(mine), O_RDWR | O_NOCTTY | O_CLOEXEC);
  require(theirs >= 0, "terminal");
  return {mine, theirs};
}

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (std::string& text : texts) {
    pointers.push_back(text.data());
  }
  pointers.push_back(nullptr);
  return pointers;
}

std::vector<std::string> environmentWith(const std::vector<std::string>& changes) {
  std::vector<std::string> all = changes;
  for (char** entry = environ; *entry != nullptr; ++entry) {
    const std::string known = *entry;
    bool isChanged = false;
    for (const std::string& change : changes) {
      isChanged = isChanged || known.starts_with(change.substr(0, change.find('=') + 1));
    }
    if (!isChanged) {
      all.push_back(known);
    }
  }
  return all;
}

/// In the child, between fork and exec: calls of the system only.
[[noreturn]] void become(const Invocation& how, int program, int out, int err, char* const* argv,
                         char* const* envp) {
  const int in = open(how.standardInput.c_str(), O_RDONLY);
  bool isReady = dup2(in, STDIN_FILENO) == STDIN_FILENO && dup2(err, STDERR_FILENO) >= 0;
  if (how.closesStandardOutput) {
    close(STDOUT_FILENO);
  } else {
    isReady = isReady && dup2(out, STDOUT_FILENO) >= 0;
  }
  if (in > STDERR_FILENO) {
    close(in);
  }
  isReady = isReady && (how.folder.empty() || chdir(how.folder.c_str()) == 0);
  std::signal(SIGPIPE, how.ignoresPipeSignal ? SIG_IGN : SIG_DFL);
  if (how.asNobody && geteuid() == 0) {
    isReady = isReady && setgroups(0, nullptr) == 0 && setgid(nobody) == 0 && setuid(nobody) == 0;
  }
  if (how.addressSpace != 0) {
    const rlimit limit{how.addressSpace, how.addressSpace};
    isReady = isReady && setrlimit(RLIMIT_AS, &limit) == 0;
  }
  if (isReady) {
    // By descriptor, for those who may not enter the folder it was built in.
    fexecve(program, argv, envp);
  }
  _exit(launchFailed);
}

/// Appends what there is to read; false at the end. A terminal ends with an error.
bool readInto(std::string& text, int descriptor) {
  std::array<char, 65536> piece{};
  ssize_t count = 0;
  do {
    count = read(descriptor, piece.data(), piece.size());
  } while (count < 0 && errno == EINTR);
  if (count > 0) {
    text.append(piece.data(), static_cast<std::size_t>(count));
  }
  return count > 0;
}

void shut(int& descriptor) {
  if (descriptor >= 0) {
    close(descriptor);
  }
  descriptor = -1;
}

}  // namespace

Process::Process(const Invocation& invocation) {
  const std::string path = invocation.program.empty() ? programPath() : invocation.program;
  std::vector<std::string> arguments = {path};
  arguments.insert(arguments.end(), invocation.arguments.begin(), invocation.arguments.end());
  std::vector<std::string> changes = invocation.environment;
  if (invocation.asNobody) {
    // What the sanitizer is told stands in a file of ours that nobody else may be able to read.
    changes.emplace_back("TSAN_OPTIONS=");
  }
  std::vector<std::string> environment = environmentWith(changes);
  const std::vector<char*> argv = pointersTo(arguments);
  const std::vector<char*> envp = pointersTo(environment);

  int program = open(path.c_str(), O_PATH | O_CLOEXEC);
  require(program >= 0, path.c_str());
  Ends out;
  if (invocation.standardOutput.empty()) {
    out = invocation.outputOnTerminal ? newTerminal() : newPipe();
  } else {
    out.writing = open(invocation.standardOutput.c_str(), O_WRONLY | O_CLOEXEC);
    require(out.writing >= 0, invocation.standardOutput.c_str());
  }
  Ends err = invocation.errorsOnTerminal ? newTerminal() : newPipe();
  id_ = fork();
  if (id_ == 0) {
    become(invocation, program, out.writing, err.writing, argv.data(), envp.data());
  }
  shut(program);
  shut(out.writing);
  shut(err.writing);
  out_ = out.reading;
  err_ = err.reading;
  require(id_ > 0, "fork");
}

Process::~Process() {
  if (id_ > 0) {
    ::kill(id_, SIGKILL);
    waitpid(id_, nullptr, 0);
  }
  shut(out_);
  shut(err_);
}

std::string Process::firstLineThenClose() {
  while (outcome_.out.find('\n') == std::string::npos && readInto(outcome_.out, out_)) {
  }
  shut(out_);
  return outcome_.out.substr(0, outcome_.out.find('\n') + 1);
}

std::string Process::errorsWithin(int milliseconds, const std::string& wanted) {
  using Clock = std::chrono::steady_clock;
  const auto end = Clock::now() + std::chrono::milliseconds(milliseconds);
  while (outcome_.err.find(wanted) == std::string::npos) {
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
    pollfd waiting{err_, POLLIN, 0};
    if (left <= 0 || poll(&waiting, 1, static_cast<int>(left)) <= 0 ||
        !readInto(outcome_.err, err_)) {
      break;
    }
  }
  return outcome_.err;
}

void Process::kill(int signal) const {
  ::kill(id_, signal);
}

Outcome Process::outcome() {
  constexpr int patienceMilliseconds = 120'000;
  while (out_ >= 0 || err_ >= 0) {
    std::array<pollfd, 2> waiting = {{{out_, POLLIN, 0}, {err_, POLLIN, 0}}};
    if (poll(waiting.data(), waiting.size(), patienceMilliseconds) <= 0) {
      throw std::runtime_error("the command does not come to an end");
    }
    if (waiting[0].revents != 0 && !readInto(outcome_.out, out_)) {
      shut(out_);
    }
    if (waiting[1].revents != 0 && !readInto(outcome_.err, err_)) {
      shut(err_);
    }
  }
  int status = 0;
  waitpid(id_, &status, 0);
  id_ = -1;
  outcome_.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  outcome_.signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
  if (outcome_.status == launchFailed) {
    throw std::runtime_error("the command could not be started");
  }
  return outcome_;
}

std::string programPath() {
  return VEYRUNA_PROGRAM;
}

Outcome run(const Invocation& invocation) {
  return Process(invocation).outcome();
}

Outcome runWith(const std::vector<std::string>& arguments) {
  return run(Invocation{.arguments = arguments});
}

std::vector<std::string> words(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> found;
  for (std::string word; stream >> word;) {
    found.push_back(word);
  }
  return found;
}

}  // namespace veyruna::tests
