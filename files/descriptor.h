#pragma once

#include <string_view>

namespace veyruna::files {

/// An open file, closed at the end of its life.
class Descriptor {
 public:
  /// Takes over what open() gave; throws the reason where it gave nothing.
  explicit Descriptor(int number);
  Descriptor(Descriptor&& other) noexcept;
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  Descriptor& operator=(Descriptor&&) = delete;
  ~Descriptor();

  [[nodiscard]] int number() const { return number_; }

 private:
  int number_;
};

/// Throws errno as a std::system_error, whose message is the system's words alone.
[[noreturn]] void throwErrno();

/// Writes all of the bytes, also to a stream that does not block; throws the reason where that is
/// not possible, and then a part may have been written.
void writeAll(const Descriptor& file, std::string_view bytes);

}  // namespace veyruna::files
