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
constexpr std::size_t gatheredSize = std::size_t{64} << 10U;  // bytes

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
  if (size > room_) {
    sendWaiting();
    broken_ = true;
  }
  if (broken_) {
    return;
  }
  room_ -= size;
  // One line is best sent in one piece: other processes may write to the same stream.
  for (const std::string_view part : parts) {
    const bool isLong = part.size() > PIPE_BUF;
    if (isLong || waiting_.size() + part.size() > (gathering_ ? gatheredSize : PIPE_BUF)) {
      sendWaiting();
    }
    if (isLong) {
      send(part);
    } else {
      waiting_ += part;
    }
  }
  if (!gathering_) {
    sendWaiting();
  }
}

void DescriptorOutput::gather(bool begins) {
  gathering_ = begins;
  if (!gathering_) {
    sendWaiting();
  }
}

void DescriptorOutput::sendWaiting() {
  send(waiting_);
  waiting_.clear();
}

void DescriptorOutput::send(std::string_view part) {
  const int target = terminal_.isOpen() ? terminal_.get() : descriptor_;
  for (int pauses = patienceMilliseconds / pauseMilliseconds; !broken_ && !part.empty();) {
    std::size_t length = part.size();
    if (mayBlock_) {
      // A pipe that polls writable takes this many bytes without waiting.
      length = std::min<std::size_t>(length, PIPE_BUF);
      pollfd waiting{target, POLLOUT, 0};
      if (retried([&] { return ::poll(&waiting, 1, patienceMilliseconds); }) <= 0) {
        broken_ = true;
        return;
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
      return;
    }
    part.remove_prefix(static_cast<std::size_t>(written));
  }
}

std::string optionalText(std::string_view text) {
  return std::string("Optional(\"").append(text).append("\")");
}

}  // namespace platform
