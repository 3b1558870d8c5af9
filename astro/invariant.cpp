#include "astro/invariant.h"

#include <cstdio>
#include <cstdlib>

namespace veyruna::astro {

void stopOnBrokenInvariant(const char* what) noexcept {
  std::fputs("veyruna: broken invariant: ", stderr);
  std::fputs(what, stderr);
  std::fputc('\n', stderr);
  std::abort();
}

}  // namespace veyruna::astro
