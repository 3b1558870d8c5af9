#pragma once

namespace veyruna::astro {

/// Called where long calculations begin. A processor on which other code has left the upper halves
/// of its vector registers in use, as Qt's hashing of texts does, runs all that follows up to seven
/// times slower. Costs a few cycles, and does nothing where there are no such registers.
inline void releaseUpperRegisters() {
#if defined(__x86_64__) && defined(__GNUC__)
  static const bool areThere = __builtin_cpu_supports("avx") != 0;
  if (areThere) {
    asm volatile("vzeroupper");
  }
#endif
}

}  // namespace veyruna::astro
