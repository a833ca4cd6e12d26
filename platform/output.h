#pragma once

#include <chrono>
#include <initializer_list>
#include <string>
#include <string_view>

#include "platform/descriptor.h"

struct pollfd;

namespace platform {

/// Where the diagnostic lines go: standard output in the program, a buffer in tests.
class Output {
 public:
  Output() = default;
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;
  virtual ~Output() = default;

  /// While it lives, lines may go out together: for thousands of them, of which each by itself
  /// would cost more than its text.
  class Gathering {
   public:
    explicit Gathering(Output& output) : output_(output) { output_.gather(true); }
    Gathering(const Gathering&) = delete;
    Gathering& operator=(const Gathering&) = delete;
    ~Gathering() { output_.gather(false); }

   private:
    Output& output_;
  };

  /// Writes the parts and a line feed as one line, at once, so that a reader sees it live.
  template <typename... Parts>
  void print(const Parts&... parts) {
    write({std::string_view(parts)..., std::string_view("\n")});
  }

 private:
  virtual void write(std::initializer_list<std::string_view> parts) = 0;
  virtual void gather(bool /*begins*/) {}
};

/// Keeps the lines in memory.
class BufferOutput : public Output {
 public:
  std::string text;

 private:
  void write(std::initializer_list<std::string_view> parts) override;
};

/// Writes to an open file descriptor. A reader that has gone away ends the output for good, and so
/// does one that keeps an action waiting for more than two seconds in all, or a line that would
/// make it more than 1 GiB: diagnostics must neither stop the window nor fill the disk.
class DescriptorOutput : public Output {
 public:
  explicit DescriptorOutput(int descriptor);

 private:
  using Clock = std::chrono::steady_clock;

  void write(std::initializer_list<std::string_view> parts) override;
  void gather(bool begins) override;
  void sendWaiting();
  void send(std::string_view part);
  bool wait(pollfd* target, Clock::duration atMost);

  std::string waiting_;  // what has been written and not sent
  bool gathering_ = false;
  int descriptor_;
  Descriptor terminal_;  // the same, opened not to wait, where it is a terminal
  std::size_t room_ = std::size_t{1} << 30U;  // bytes still to be taken
  // How long may still be waited. Waiting takes from it, and time that passes otherwise gives back
  // as much: nobody has to say where an action ends, such as a start or a save.
  Clock::duration patience_;
  Clock::time_point waited_ = Clock::now();  // when the last waiting ended
  bool mayBlock_;
  bool broken_ = false;
};

/// `text` as an optional value is printed: Optional("text").
std::string optionalText(std::string_view text);

/// The texts as a list is printed: ["a", "b"].
template <typename Texts>
std::string listText(const Texts& texts) {
  std::string list = "[";
  for (const auto& text : texts) {
    list.append(list.size() > 1 ? ", \"" : "\"").append(text).append("\"");
  }
  return list += "]";
}

}  // namespace platform
