#pragma once

#include <cstddef>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
// The sanitizers' own books; not every compiler comes with the header that declares them.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#else
#include <malloc.h>
#endif

namespace veyruna::tests {

/// How many bytes the program has on its heap and not given back.
inline std::size_t heapBytes() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  return __sanitizer_get_current_allocated_bytes();
#else
  const struct mallinfo2 now = mallinfo2();
  return now.uordblks + now.hblkhd;
#endif
}

}  // namespace veyruna::tests
