#pragma once

#include <cstdint>
#include <optional>
#include <string>

struct stat;

namespace platform {

/// What changes about a file when somebody writes or replaces it.
struct FileStamp {
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  std::int64_t size = 0;      // bytes
  std::int64_t modified = 0;  // nanoseconds since 1970

  friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

FileStamp stampOf(const struct stat& status);

/// The stamp of what is at a path, links followed; none when nothing can be found there.
std::optional<FileStamp> stampOf(const std::string& path);

}  // namespace platform
