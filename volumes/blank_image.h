#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <system_error>

namespace volumes {

/// A buffer of zero bytes as long as asked for. It is never written to, so that the system lets one
/// page of zeros stand for all of it and it takes hardly any memory.
class ZeroBuffer {
 public:
  ZeroBuffer() = default;
  ZeroBuffer(const ZeroBuffer&) = delete;
  ZeroBuffer& operator=(const ZeroBuffer&) = delete;
  ~ZeroBuffer() { release(); }

  /// Sets the length in bytes; fails when there is no address space for it.
  std::error_code setLength(std::size_t length);

  [[nodiscard]] std::string_view bytes() const {
    return {static_cast<const char*>(start_), length_};
  }

 private:
  void release();

  void* start_ = nullptr;
  std::size_t length_ = 0;
};

/// Writes an image file, creating or replacing it. The space is reserved first: without room for
/// all of it an old file stays as it is. A file that was created and could not be finished is
/// removed.
std::error_code writeImage(const std::string& path, std::string_view content);

}  // namespace volumes
