#pragma once

namespace veyruna::astro {

/// Stops the program with "veyruna: broken invariant: <what>" on standard error.
/// For mistakes in the program itself, never for bad input; works in every build.
[[noreturn]] void stopOnBrokenInvariant(const char* what) noexcept;

/// Stops the program unless `holds`. `what` says in words what must be true.
inline void requireInvariant(bool holds, const char* what) noexcept {
  if (!holds) [[unlikely]] {
    stopOnBrokenInvariant(what);
  }
}

}  // namespace veyruna::astro
