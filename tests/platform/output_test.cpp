#include "platform/output.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <thread>

#include "platform/descriptor.h"

namespace platform {
namespace {

struct Pipe {
  Pipe() {
    int ends[2] = {-1, -1};
    EXPECT_EQ(::pipe(ends), 0);
    reading = Descriptor(ends[0]);
    writing = Descriptor(ends[1]);
  }
  Descriptor reading, writing;
};

TEST(DescriptorOutput, OutlivesAReaderThatIsGone) {
  const auto former = ::signal(SIGPIPE, SIG_IGN);
  Pipe pipe;
  pipe.reading.close();
  DescriptorOutput(pipe.writing.get()).print("nobody reads this");
  ::signal(SIGPIPE, former);
}

TEST(DescriptorOutput, GivesUpOnASleepingReader) {
  const Pipe pipe;
  const Descriptor screen(::posix_openpt(O_RDWR | O_NOCTTY));
  ASSERT_TRUE(::grantpt(screen.get()) == 0 && ::unlockpt(screen.get()) == 0);
  const Descriptor terminal(::open(::ptsname(screen.get()), O_RDWR | O_NOCTTY));
  for (const int descriptor : {pipe.writing.get(), terminal.get()}) {
    const auto start = std::chrono::steady_clock::now();
    DescriptorOutput output(descriptor);
    for (int line = 0; line < 50; ++line) {
      output.print("a list of volumes: ", std::string(24'000, 'x'));
      output.print("a short line");
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(6));
    EXPECT_EQ(::fcntl(descriptor, F_GETFL) & O_NONBLOCK, 0) << "others share it";
  }
}

}  // namespace
}  // namespace platform
