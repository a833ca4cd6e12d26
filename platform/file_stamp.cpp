#include "platform/file_stamp.h"

#include <sys/stat.h>

namespace platform {

FileStamp stampOf(const struct stat& status) {
#ifdef __APPLE__
  const timespec& time = status.st_mtimespec;
#else
  const timespec& time = status.st_mtim;
#endif
  constexpr std::int64_t nanosecondsPerSecond = 1'000'000'000;
  return {static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino),
          status.st_size, time.tv_sec * nanosecondsPerSecond + time.tv_nsec};
}

std::optional<FileStamp> stampOf(const std::string& path) {
  struct stat status {};
  if (path.find('\0') != std::string::npos || ::stat(path.c_str(), &status) != 0) {
    return std::nullopt;
  }
  return stampOf(status);
}

}  // namespace platform
