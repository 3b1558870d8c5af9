// What a table of a thousand people costs beside its horoscopes alone: calculated and written one
// after the other by the same function, divided by the cores. Prints the least of several turns of
// each; the files go to a folder below the one that is named, which is removed.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <random>
#include <string>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>

#include "cli/batch/rows.h"
#include "cli/batch/side_by_side.h"
#include "cli/program/command_line.h"
#include "documents/documents.h"
#include "files/file_writer.h"

namespace {

namespace fs = std::filesystem;
using namespace veyruna;

constexpr int rowCount = 1000;
constexpr int turns = 7;

/// A table of people born anywhere at any time.
std::string table() {
  std::mt19937 random(720);
  const auto below = [&random](unsigned limit) { return std::to_string(random() % limit); };
  std::string text = "name,date,hour,local,place\n";
  for (int i = 0; i < rowCount; ++i) {
    text += "Person " + std::to_string(i) + "," + std::to_string(random() % 2000 + 1) + "-" +
            std::to_string(random() % 12 + 1) + "-" + std::to_string(random() % 30 + 1) + "," +
            below(24) + ":" + std::to_string(random() % 50 + 10) + ",yes," + below(80) + "N " +
            below(180) + "E\n";
  }
  return text;
}

/// What work takes: on the clock, and of the processor, which others on the machine change less.
struct Cost {
  double seconds = 1e9;
  double processorSeconds = 1e9;
};

double processorSeconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// A piece of work, and what makes ready for it.
struct Piece {
  std::function<void()> makeReady;
  std::function<void()> work;
};

/// The least cost of each piece of work, each in its turn with the others.
std::vector<Cost> leastCosts(const std::vector<Piece>& pieces) {
  std::vector<Cost> least(pieces.size());
  for (int turn = 0; turn < turns; ++turn) {
    for (std::size_t i = 0; i < pieces.size(); ++i) {
      pieces[i].makeReady();
      const auto begin = std::chrono::steady_clock::now();
      const double processorBegin = processorSeconds();
      pieces[i].work();
      least[i].processorSeconds =
          std::min(least[i].processorSeconds, processorSeconds() - processorBegin);
      least[i].seconds =
          std::min(least[i].seconds,
                   std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
    }
  }
  return least;
}

}  // namespace

int main(int argc, char** argv) {
  const fs::path folder = fs::path(argc > 1 ? argv[1] : ".") / "veyruna-batch-bench";
  const std::string file = (folder / "people.csv").string();
  const std::string people = table();
  fs::create_directories(folder);
  if (files::writeWholeFile(file, people) || freopen("/dev/null", "w", stdout) == nullptr) {
    std::fprintf(stderr, "cannot write below %s\n", folder.c_str());
    return 1;
  }
  const std::vector<cli::BatchRow> rows = cli::readRows(people, {}, {});
  std::vector<std::string> horoscopes(rows.size());
  const auto empty = [&folder](const char* name) {
    return [path = folder / name] {
      fs::remove_all(path);
      fs::create_directory(path);
    };
  };
  const std::vector<Cost> least = leastCosts({
      {[] {},
       [&] {
         for (std::size_t i = 0; i < rows.size(); ++i) {
           horoscopes[i] = documents::textOf(documents::Document::horoscope, rows[i].sky.observer);
         }
       }},
      {empty("alone"),
       [&] {
         for (std::size_t i = 0; i < rows.size(); ++i) {
           files::writeWholeFile((folder / "alone" / std::to_string(i)).string(), horoscopes[i]);
         }
       }},
      {empty("out"),
       [&] {
         cli::runCommandLine({"batch", file, "--documents", "horoscope", "--out", folder / "out"});
       }},
  });
  fs::remove_all(folder);
  const auto cores = static_cast<double>(cli::coreCount());
  const double alone = least[0].seconds + least[1].seconds;
  const double processorAlone = least[0].processorSeconds + least[1].processorSeconds;
  std::fprintf(stderr,
               "  calculated in %.3f s, written in %.3f s; by the command in %.3f s on %.0f cores\n"
               "  command / (both / cores) = %.2f; of the processor: command / both = %.2f\n",
               least[0].seconds, least[1].seconds, least[2].seconds, cores,
               least[2].seconds / (alone / cores), least[2].processorSeconds / processorAlone);
  return 0;
}
