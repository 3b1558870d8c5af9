#pragma once

namespace veyruna::almanac {

/// Several functions as one, to visit a variant with.
template <class... Functions>
struct Overloaded : Functions... {
  using Functions::operator()...;
};
template <class... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

}  // namespace veyruna::almanac
