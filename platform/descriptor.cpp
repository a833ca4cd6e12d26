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
  if (!opened.isOpen()) {
    error = lastError();
    // open() of a FIFO without a reader fails with ENXIO, "no such device", which would mislead.
    if (error == std::errc::no_such_device_or_address) {
      error = std::make_error_code(std::errc::operation_not_supported);
    }
    return opened;
  }
  error = opened.measure();
  return error ? Descriptor() : std::move(opened);
}

std::error_code Descriptor::measure() {
  struct stat status {};
  if (::fstat(number_, &status) != 0) {
    return lastError();
  }
  if (!S_ISREG(status.st_mode)) {
    return std::make_error_code(S_ISDIR(status.st_mode) ? std::errc::is_a_directory
                                                        : std::errc::operation_not_supported);
  }
  size_ = static_cast<std::uintmax_t>(status.st_size);
  return {};
}

std::optional<std::string> Descriptor::read(std::size_t count, std::error_code& error) const {
  std::string content(count, '\0');
  std::size_t filled = 0;
  while (filled < count) {
    const ssize_t got = retried([&] {
      return ::pread(number_, &content[filled], count - filled, static_cast<off_t>(filled));
    });
    if (got < 0) {
      error = lastError();
      return std::nullopt;
    }
    filled += static_cast<std::size_t>(got);
    // fstat() told the size: one more read() at the end would only return 0.
    if (got == 0 || filled == size_) {
      break;
    }
  }
  content.resize(filled);
  return content;
}

std::error_code Descriptor::close() {
  const int number = std::exchange(number_, -1);
  // On Linux close() closes even when it fails with EINTR. A second try could close a descriptor
  // that another thread has opened meanwhile.
  if (number >= 0 && ::close(number) != 0 && errno != EINTR) {
    return lastError();
  }
  return {};
}

}  // namespace platform
