#include "platform/output.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>

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

}  // namespace platform
