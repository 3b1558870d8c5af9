#pragma once

#include <cstdlib>
#include <unistd.h>

namespace veyruna::tests {

/// Lets the tests act without the rights of root while it lives.
class AsNobody {
 public:
  AsNobody() {
    constexpr uid_t nobody = 65534;
    wasRoot_ = geteuid() == 0;
    holds_ = !wasRoot_ || (setegid(nobody) == 0 && seteuid(nobody) == 0);
  }
  AsNobody(const AsNobody&) = delete;
  AsNobody& operator=(const AsNobody&) = delete;
  ~AsNobody() {
    if (wasRoot_ && (seteuid(0) != 0 || setegid(0) != 0)) {
      std::abort();
    }
  }
  [[nodiscard]] bool holds() const { return holds_; }

 private:
  bool wasRoot_ = false;
  bool holds_ = false;
};

}  // namespace veyruna::tests
