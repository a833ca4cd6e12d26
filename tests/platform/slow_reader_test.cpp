#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <string>
#include <thread>

#include "platform/output.h"

namespace platform {
namespace {

using namespace std::chrono_literals;

// A pipe that is full from the beginning, and what comes out of it behind that.
class FullPipe {
 public:
  FullPipe() {
    EXPECT_EQ(::pipe(ends_.data()), 0);
    DescriptorOutput(ends_[1]).print(std::string(capacity - 1, '-'));
  }
  ~FullPipe() { ::close(ends_[0]); }

  [[nodiscard]] int input() const { return ends_[1]; }
  void closeInput() { ::close(ends_[1]); }

  // Takes up to `count` bytes; false at the end.
  bool take(std::size_t count) {
    std::string bytes(count, ' ');
    const ssize_t got = ::read(ends_[0], bytes.data(), count);
    taken.append(bytes, 0, static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
    return got > 0;
  }

  std::string taken;

 private:
  static constexpr std::size_t capacity = std::size_t{64} << 10U;
  std::array<int, 2> ends_{};
};

TEST(SlowReader, KeepsNoActionWaitingForLong) {
  FullPipe pipe;
  std::atomic<bool> waits = true;
  std::thread reader([&] {
    while (waits && pipe.take(8192)) {
      std::this_thread::sleep_for(400ms);
    }
  });
  const auto start = std::chrono::steady_clock::now();
  DescriptorOutput output(pipe.input());
  for (int line = 0; line < 20; ++line) {
    output.print(std::string(8000, 'x'));
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, 4s);
  waits = false;
  reader.join();
  pipe.closeInput();
}

TEST(SlowReader, GetsTheLinesOfTheNextActionAllTheSame) {
  FullPipe pipe;
  DescriptorOutput output(pipe.input());
  std::string wanted;
  for (const auto* const line : {"a start", "a save"}) {
    std::thread reader([&] {
      std::this_thread::sleep_for(1200ms);
      pipe.take(40960);
    });
    wanted += std::string(32000, '.') + line + "\n";
    output.print(std::string(32000, '.'), line);
    reader.join();
    std::this_thread::sleep_for(1500ms);
  }
  pipe.closeInput();
  while (pipe.take(65536)) {
  }
  EXPECT_TRUE(pipe.taken.ends_with(wanted));
}

}  // namespace
}  // namespace platform
