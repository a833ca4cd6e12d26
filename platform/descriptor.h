#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

namespace platform {

/// An open file descriptor, closed at the end.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept
      : number_(std::exchange(other.number_, -1)), size_(other.size_) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    size_ = other.size_;
    return *this;
  }
  ~Descriptor() { close(); }

  /// Opens a regular file without ever waiting and hidden from started programs. A folder, pipe or
  /// device is refused, the reason in `error`.
  static Descriptor openRegular(const std::string& path, int flags, std::error_code& error);

  [[nodiscard]] int get() const { return number_; }
  [[nodiscard]] bool isOpen() const { return number_ >= 0; }
  /// Bytes in the regular file when it was opened or last measured.
  [[nodiscard]] std::uintmax_t size() const { return size_; }
  /// Asks for the size once more.
  std::error_code measure();

  /// The first `count` bytes of the file, all of them where it has fewer.
  std::optional<std::string> read(std::size_t count, std::error_code& error) const;

  /// Closes at once; the only way to learn of an error that shows no earlier.
  std::error_code close();

 private:
  int number_;
  std::uintmax_t size_ = 0;
};

/// The error that the last system call left behind.
std::error_code lastError();

/// Calls again for as long as a signal interrupts the system call.
template <typename Call>
auto retried(Call call) -> decltype(call()) {
  for (;;) {
    const auto result = call();
    if (result != -1 || lastError() != std::errc::interrupted) {
      return result;
    }
  }
}

}  // namespace platform
