#include "platform/output.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>

#include "platform/descriptor.h"

namespace platform {
namespace {

constexpr int patienceMilliseconds = 2000;
constexpr int pauseMilliseconds = 10;

// A terminal may poll writable and still make a writer wait. Opened once more it can be written to
// without waiting, which leaves it as it is for the programs that share it.
Descriptor openTerminal(int descriptor) {
  if (::isatty(descriptor) == 0) {
    return Descriptor();
  }
  const std::string name = "/dev/fd/" + std::to_string(descriptor);
  return Descriptor(::open(name.c_str(), O_WRONLY | O_NOCTTY | O_NONBLOCK | O_CLOEXEC));
}

}  // namespace

void BufferOutput::write(std::initializer_list<std::string_view> parts) {
  for (const std::string_view part : parts) {
    text += part;
  }
}

DescriptorOutput::DescriptorOutput(int descriptor)
    : descriptor_(descriptor), terminal_(openTerminal(descriptor)) {
  struct stat status {};
  // The null device takes everything at once, whatever its size; a file never makes a writer wait.
  mayBlock_ = ::fstat(descriptor, &status) == 0 && !S_ISREG(status.st_mode) &&
              !(S_ISCHR(status.st_mode) && ::isatty(descriptor) == 0);
}

void DescriptorOutput::write(std::initializer_list<std::string_view> parts) {
  std::size_t size = 0;
  for (const std::string_view part : parts) {
    size += part.size();
  }
  broken_ = broken_ || size > room_;
  room_ -= std::min(size, room_);
  // One line is best written in one piece: other processes may write to the same stream.
  std::string line;
  for (const std::string_view part : parts) {
    if (line.size() + part.size() <= PIPE_BUF) {
      line += part;
      continue;
    }
    if (broken_ || !send(line) || !send(part)) {
      return;
    }
    line.clear();
  }
  if (!broken_) {
    send(line);
  }
}

bool DescriptorOutput::send(std::string_view part) {
  const int target = terminal_.isOpen() ? terminal_.get() : descriptor_;
  for (int pauses = patienceMilliseconds / pauseMilliseconds; !part.empty();) {
    std::size_t length = part.size();
    if (mayBlock_) {
      // A pipe that polls writable takes this many bytes without waiting.
      length = std::min<std::size_t>(length, PIPE_BUF);
      pollfd waiting{target, POLLOUT, 0};
      if (retried([&] { return ::poll(&waiting, 1, patienceMilliseconds); }) <= 0) {
        broken_ = true;
        return false;
      }
    }
    const ssize_t written = retried([&] { return ::write(target, part.data(), length); });
    if (written < 0 && errno == EAGAIN && pauses > 0) {
      --pauses;
      ::poll(nullptr, 0, pauseMilliseconds);
      continue;
    }
    if (written <= 0) {
      broken_ = true;
      return false;
    }
    part.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

std::string optionalText(std::string_view text) {
  return std::string("Optional(\"").append(text).append("\")");
}

}  // namespace platform
