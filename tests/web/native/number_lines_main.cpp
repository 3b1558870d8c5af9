#include <cstdio>

#include "tests/web/native/number_lines.h"

int main() {
  std::fputs(veyruna::tests::numberLines().c_str(), stdout);
}
