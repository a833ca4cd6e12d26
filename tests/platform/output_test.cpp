#include "platform/output.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <thread>

namespace platform {
namespace {

using namespace std::chrono_literals;

/// A pipe, and what was read from it.
struct Pipe {
  Pipe() {
    std::array<int, 2> ends{};
    EXPECT_EQ(::pipe(ends.data()), 0);
    reading = Descriptor(ends[0]);
    writing = Descriptor(ends[1]);
  }

  void fill() const { DescriptorOutput(writing.get()).print(std::string((64U << 10U) - 1, '-')); }

  /// Takes up to so many bytes; false at the end.
  bool take(std::size_t count) {
    std::string bytes(count, ' ');
    const ssize_t got = ::read(reading.get(), bytes.data(), count);
    taken.append(bytes, 0, got > 0 ? static_cast<std::size_t>(got) : 0);
    return got > 0;
  }

  Descriptor reading{-1};
  Descriptor writing{-1};
  std::string taken;
};

TEST(DescriptorOutput, GivesUpOnAReaderThatIsSlowAndOnATerminalThatIsHeld) {
  Pipe slow;
  slow.fill();
  const Descriptor screen(::posix_openpt(O_RDWR | O_NOCTTY));
  ASSERT_TRUE(::grantpt(screen.get()) == 0 && ::unlockpt(screen.get()) == 0);
  const Descriptor terminal(::open(::ptsname(screen.get()), O_RDWR | O_NOCTTY));
  std::atomic<bool> waits = true;
  std::thread reader([&] {
    while (waits && slow.take(8192)) {
      std::this_thread::sleep_for(400ms);
    }
  });
  for (const int end : {slow.writing.get(), terminal.get()}) {
    const auto start = std::chrono::steady_clock::now();
    DescriptorOutput output(end);
    for (int line = 0; line < 20; ++line) {
      output.print("a list of volumes: ", std::string(24'000, 'x'));
      output.print("a short line");
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, 4s);
    EXPECT_EQ(::fcntl(end, F_GETFL) & O_NONBLOCK, 0) << "others share it";
  }
  waits = false;
  reader.join();
}

TEST(DescriptorOutput, ASlowReaderGetsTheLinesOfTheNextActionAllTheSame) {
  Pipe pipe;
  pipe.fill();
  DescriptorOutput output(pipe.writing.get());
  const std::string wanted = std::string(32000, '.') + "\n";
  for (int action = 0; action < 2; ++action) {
    std::thread reader([&] {
      std::this_thread::sleep_for(1200ms);
      pipe.take(40960);
    });
    output.print(std::string(32000, '.'));
    reader.join();
    std::this_thread::sleep_for(1500ms);
  }
  pipe.writing = Descriptor(-1);
  while (pipe.take(65536)) {
  }
  EXPECT_TRUE(pipe.taken.ends_with(wanted + wanted));
}

TEST(DescriptorOutput, GatheredLinesKeepTheirOrderAndAreAllThere) {
  Pipe pipe;
  std::string wanted;
  DescriptorOutput output(pipe.writing.get());
  {
    const Output::Gathering gathering(output);
    for (const std::size_t size : {5U, 9000U, 20U, 4096U, 4090U, 0U, 30000U}) {
      const std::string line(size, static_cast<char>('a' + size % 26));
      output.print(line, "!");
      wanted += line + "!\n";
    }
  }
  pipe.take(wanted.size() + 1);
  EXPECT_EQ(pipe.taken, wanted);
}

}  // namespace
}  // namespace platform
