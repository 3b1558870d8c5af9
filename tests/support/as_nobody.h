#pragma once

#include <cstdlib>
#include <optional>
#include <string>
#include <unistd.h>

namespace veyruna::tests {

/// Lets the tests act without the rights of root while it lives. What a sanitizer is told stands in
/// a file of ours that nobody else may be able to read; programs begun meanwhile are not told it.
class AsNobody {
 public:
  AsNobody() {
    constexpr uid_t nobody = 65534;
    wasRoot_ = geteuid() == 0;
    holds_ = !wasRoot_ || (setegid(nobody) == 0 && seteuid(nobody) == 0);
    if (const char* const options = std::getenv(sanitizerOptions); wasRoot_ && options != nullptr) {
      told_ = options;
      unsetenv(sanitizerOptions);
    }
  }
  AsNobody(const AsNobody&) = delete;
  AsNobody& operator=(const AsNobody&) = delete;
  ~AsNobody() {
    if (wasRoot_ && (seteuid(0) != 0 || setegid(0) != 0)) {
      std::abort();
    }
    if (told_) {
      setenv(sanitizerOptions, told_->c_str(), 1);
    }
  }
  [[nodiscard]] bool holds() const { return holds_; }

 private:
  static constexpr const char* sanitizerOptions = "TSAN_OPTIONS";

  std::optional<std::string> told_;
  bool wasRoot_ = false;
  bool holds_ = false;
};

}  // namespace veyruna::tests
