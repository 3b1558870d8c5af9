#include "cli/page/page_file.h"

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string_view>

#include "cli/typed/named_file.h"
#include "words/quoting.h"

namespace veyruna::cli {

namespace {

constexpr std::string_view emptySession =
    R"(<script type="application/json" id="session">{}</script>)";

std::filesystem::path pageFile() {
  if (const char* const named = std::getenv("VEYRUNA_PAGE")) {
    return named;
  }
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe");
  std::filesystem::path installed =
      program.parent_path().parent_path() / "share/veyruna/veyruna.html";
  const std::filesystem::path built = VEYRUNA_BUILT_PAGE;
  std::error_code problem;
  return built.empty() || std::filesystem::exists(installed, problem) ? installed : built;
}

std::string contentOf(const std::string& file) {
  constexpr std::size_t mostBytes = std::size_t{64} << 20U;
  try {
    return contentOfFile(file, mostBytes);
  } catch (const std::runtime_error&) {
    throw std::runtime_error("the page for browsers is not here: " + words::inQuotes(file) +
                             " cannot be read; in the source tree ./page builds it");
  }
}

}  // namespace

std::string pageFor(const Session& session) {
  const std::string file = pageFile().string();
  std::string page = contentOf(file);
  const std::size_t at = page.find(emptySession);
  if (at == std::string::npos) {
    throw std::runtime_error(words::inQuotes(file) + " is no page for browsers");
  }
  return page.replace(at + emptySession.find("{}"), 2, sessionJson(session));
}

}  // namespace veyruna::cli
