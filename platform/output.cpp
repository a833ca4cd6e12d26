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

using std::chrono::milliseconds;

constexpr milliseconds longestPatience(2000);
constexpr milliseconds pauseLength(10);
constexpr std::size_t gatheredSize = std::size_t{64} << 10U;  // bytes

// poll() may call a terminal writable whose write() then blocks (after Ctrl+S). O_NONBLOCK on our
// own second descriptor prevents that; set on the first one it would apply to the shell as well.
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
    : descriptor_(descriptor), terminal_(openTerminal(descriptor)), patience_(longestPatience) {
  struct stat status {};
  // write() to a regular file or to /dev/null never blocks: no poll() is needed before it.
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
  // A write() of up to PIPE_BUF bytes is atomic: lines of other processes do not get in between.
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

// Waits until the target can be written to and returns whether it can. With a null pointer it only
// sleeps, and returns whether any of patience_ is left.
bool DescriptorOutput::wait(pollfd* target, Clock::duration atMost) {
  const Clock::time_point start = Clock::now();
  patience_ = std::min<Clock::duration>(patience_ + (start - waited_), longestPatience);
  const Clock::duration longest = std::max(std::min(patience_, atMost), Clock::duration::zero());
  const auto length = std::chrono::ceil<milliseconds>(longest).count();
  const int ready =
      retried([&] { return ::poll(target, target != nullptr ? 1 : 0, static_cast<int>(length)); });
  waited_ = Clock::now();
  patience_ -= waited_ - start;
  return target != nullptr ? ready > 0 : patience_ > Clock::duration::zero();
}

void DescriptorOutput::send(std::string_view part) {
  pollfd target{terminal_.isOpen() ? terminal_.get() : descriptor_, POLLOUT, 0};
  while (!broken_ && !part.empty()) {
    if (mayBlock_ && !wait(&target, longestPatience)) {
      broken_ = true;
      return;
    }
    // After poll() says writable, a pipe takes PIPE_BUF bytes without blocking (POSIX).
    const std::size_t length =
        mayBlock_ ? std::min<std::size_t>(part.size(), PIPE_BUF) : part.size();
    const ssize_t written = retried([&] { return ::write(target.fd, part.data(), length); });
    if (written < 0 && errno == EAGAIN && wait(nullptr, pauseLength)) {
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
