#include "cli/written/folder.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>

#include "cli/typed/errors.h"
#include "words/quoting.h"

namespace veyruna::cli {

void makeFolder(const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error) {
    throw WriteError("cannot make the folder " + words::inQuotes(folder) + ": " + error.message());
  }
  if (faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) != 0) {
    throw WriteError("cannot write into the folder " + words::inQuotes(folder) + ": " +
                     std::generic_category().message(errno));
  }
}

}  // namespace veyruna::cli
