// The same for a browser.
#include <string>

#include "tests/web/native/number_lines.h"

extern "C" __attribute__((used, visibility("default"))) const char* veyruna_number_lines() {
  static const std::string lines = veyruna::tests::numberLines();
  return lines.c_str();
}
