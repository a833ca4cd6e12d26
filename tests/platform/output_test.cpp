#include "platform/output.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <optional>

namespace platform {

TEST(DescriptorOutput, GivesUpOnAReaderThatSleepsOrIsGone) {
  const auto former = ::signal(SIGPIPE, SIG_IGN);
  int sleeping[2], gone[2];
  ASSERT_TRUE(::pipe(sleeping) == 0 && ::pipe(gone) == 0);
  const Descriptor screen(::posix_openpt(O_RDWR | O_NOCTTY));
  ASSERT_TRUE(::grantpt(screen.get()) == 0 && ::unlockpt(screen.get()) == 0);
  const int terminal = ::open(::ptsname(screen.get()), O_RDWR | O_NOCTTY);
  ::close(gone[0]);
  for (const int descriptor : {gone[1], sleeping[1], terminal}) {
    const auto start = std::chrono::steady_clock::now();
    DescriptorOutput output(descriptor);
    for (int line = 0; line < 50; ++line) {
      output.print("a list of volumes: ", std::string(24'000, 'x'));
      output.print("a short line");
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(6));
    EXPECT_EQ(::fcntl(descriptor, F_GETFL) & O_NONBLOCK, 0) << "others share it";
    ::close(descriptor);
  }
  ::close(sleeping[0]);
  ::signal(SIGPIPE, former);
}

TEST(DescriptorOutput, GatheredLinesKeepTheirOrderAndAreAllThere) {
  int ends[2];
  ASSERT_EQ(::pipe(ends), 0);
  std::string wanted;
  DescriptorOutput output(ends[1]);
  for (const bool gathers : {true, false}) {
    std::optional<Output::Gathering> gathering;
    if (gathers) {
      gathering.emplace(output);
    }
    for (const std::size_t size : {5U, 9000U, 20U, 4096U, 4090U, 0U, 3U}) {
      output.print(std::string(size, static_cast<char>('a' + size % 26)), "!");
      wanted += std::string(size, static_cast<char>('a' + size % 26)) + "!\n";
    }
  }
  std::string found(wanted.size() + 1, ' ');
  found.resize(static_cast<std::size_t>(::read(ends[0], found.data(), found.size())));
  EXPECT_EQ(found, wanted);
  ::close(ends[0]);
  ::close(ends[1]);
}

}  // namespace platform
