#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// One trial: whatever the bytes are, it returns 0, or ends the program where a promise is broken.
/// Called by libFuzzer, or by the replay of what is kept in fuzz/corpus.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

namespace veyruna::fuzz {

/// Ends the program unless `holds`.
inline void promise(bool holds, const char* what) {
  if (!holds) {
    std::fprintf(stderr, "broken promise: %s\n", what);
    std::abort();
  }
}

}  // namespace veyruna::fuzz
