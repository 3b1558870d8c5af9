// The one file that knows where the sources lie: in another folder it alone is compiled anew.
#include "tests/support/source_path.h"

namespace veyruna::tests {

std::string sourcePath(const std::string& name) {
  return VEYRUNA_SOURCE_DIR "/" + name;
}

}  // namespace veyruna::tests
