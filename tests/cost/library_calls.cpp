// The program's own functions stand before the library's and pass every call on.
#include "tests/cost/library_calls.h"

#include <dlfcn.h>
#include <utility>

namespace {

veyruna::tests::LibraryCalls calls;

template <class Function>
Function* theLibrarys(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" {

double sin(double x) noexcept;
double cos(double x) noexcept;
void sincos(double x, double* sine, double* cosine) noexcept;
double atan(double x) noexcept;
double atan2(double y, double x) noexcept;

double sin(double x) noexcept {
  static auto* const original = theLibrarys<double(double)>("sin");
  ++calls.sines;
  return original(x);
}

double cos(double x) noexcept {
  static auto* const original = theLibrarys<double(double)>("cos");
  ++calls.cosines;
  return original(x);
}

void sincos(double x, double* sine, double* cosine) noexcept {
  static auto* const original = theLibrarys<void(double, double*, double*)>("sincos");
  ++calls.sines;
  ++calls.cosines;
  original(x, sine, cosine);
}

double atan(double x) noexcept {
  static auto* const original = theLibrarys<double(double)>("atan");
  ++calls.arcTangents;
  return original(x);
}

double atan2(double y, double x) noexcept {
  static auto* const original = theLibrarys<double(double, double)>("atan2");
  ++calls.arcTangents;
  return original(y, x);
}
}

namespace veyruna::tests {

LibraryCalls takeLibraryCalls() {
  return std::exchange(calls, {});
}

}  // namespace veyruna::tests
