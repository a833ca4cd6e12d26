#include "platform/descriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace platform {

std::error_code lastError() { return {errno, std::generic_category()}; }

Descriptor Descriptor::openRegular(const std::string& path, int flags, std::error_code& error) {
  error.clear();
  if (path.find('\0') != std::string::npos) {
    error = std::make_error_code(std::errc::invalid_argument);
    return Descriptor();
  }
  constexpr mode_t newFileMode = 0666;  // less what the user's umask takes away
  Descriptor opened(retried([&] {
    return ::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, newFileMode);
  }));
  struct stat status {};
  if (!opened.isOpen() || ::fstat(opened.get(), &status) != 0) {
    error = lastError();
    // A pipe without a reader answers as if it were a missing device.
    if (error == std::errc::no_such_device_or_address) {
      error = std::make_error_code(std::errc::operation_not_supported);
    }
    return Descriptor();
  }
  if (!S_ISREG(status.st_mode)) {
    error = std::make_error_code(S_ISDIR(status.st_mode) ? std::errc::is_a_directory
                                                         : std::errc::operation_not_supported);
    return Descriptor();
  }
  opened.openedSize_ = static_cast<std::size_t>(status.st_size);
  return opened;
}

std::error_code Descriptor::close() {
  const int number = std::exchange(number_, -1);
  // An interrupted close has closed all the same; trying again could close somebody else's file.
  if (number >= 0 && ::close(number) != 0 && errno != EINTR) {
    return lastError();
  }
  return {};
}

}  // namespace platform
