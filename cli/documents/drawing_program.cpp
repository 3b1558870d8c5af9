#include "cli/documents/drawing_program.h"

#include <cerrno>
#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <unistd.h>

#include "words/quoting.h"

namespace veyruna::cli {

void becomeDrawingProgram(const std::vector<std::string>& arguments) {
  const std::filesystem::path own = std::filesystem::read_symlink("/proc/self/exe");
  std::vector<std::string> words = {own.parent_path() / "veyruna-draw"};
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::vector<char*> pointers;
  pointers.reserve(words.size() + 1);
  for (std::string& word : words) {
    pointers.push_back(word.data());
  }
  pointers.push_back(nullptr);
  execv(pointers.front(), pointers.data());
  throw std::runtime_error("cannot start " + words::inQuotes(words.front()) +
                           ", which draws: " + std::generic_category().message(errno));
}

}  // namespace veyruna::cli
