#include "platform/workspace.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <thread>

#include "platform/bundle.h"
#include "platform/descriptor.h"
#include "tests/support/data.h"
#include "tests/support/temporary_folder.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

// Leaves its findings in the file "found" of its working directory: what it reads, whether it is in
// the session that the environment tells, whether it ignores SIGPIPE, and its descriptors, of which
// the last is that of their listing.
constexpr auto script = R"sh(#!/bin/sh
printf %s "$0" >program
{ readlink /proc/self/fd/0; [ "$(cut -d' ' -f6 /proc/self/stat)" = "$SESSION" ] && echo same session
  sed -n 's/^SigIgn:.*[13579bdf]...$/ignored/p' /proc/self/status
  echo $(ls /proc/self/fd) "$TEXT"; } >found.new
mv found.new found
)sh";

struct WorkspaceTest : testing::Test {
  WorkspaceTest() { fs::create_directory(home); }

  // Makes a script that may be run.
  [[nodiscard]] std::string program(const std::string& name) const {
    std::string file = folder.write(name, script);
    fs::permissions(file, fs::perms::owner_all);
    return file;
  }

  // What the program that is started at `path` found; empty when none was started.
  std::string launch(const std::string& path) {
    fs::remove(home + "/found");
    const bool starts = workspace.launchApplication(path);
    for (int round = 0; starts && round < 1000 && !fs::exists(home + "/found"); ++round) {
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return folder.read("home/found");
  }

  tests::TemporaryFolder folder;
  std::string home = folder.path("home");
  ProcessWorkspace workspace{home};
};

TEST_F(WorkspaceTest, DetachesWhatItStarts) {
  ::setenv("SESSION", std::to_string(::getsid(0)).c_str(), 1);
  ::setenv("TEXT", "two\n words", 1);
  const auto former = ::signal(SIGPIPE, SIG_IGN);
  const Descriptor open(::open("/dev/null", O_RDONLY));
  const Descriptor high(::fcntl(open.get(), F_DUPFD, 200));
  EXPECT_EQ(launch(program("program")), "/dev/null\n0 1 2 3 two\n words\n");
  ::signal(SIGPIPE, former);
  EXPECT_TRUE(::waitpid(-1, nullptr, WNOHANG) == -1 && errno == ECHILD);
}

TEST_F(WorkspaceTest, StartsTheExecutableOrTellsThatThereIsNone) {
  const std::string start = "<plist><dict><key>CFBundleExecutable</key><string>";
  folder.write("Q.app/Contents/Info.plist", start + "emulator</string></dict></plist>");
  folder.write("Up.app/Contents/Info.plist", start + "../../evil</string></dict></plist>");
  (void)program("Up.app/evil");
  folder.write("Data.app/Contents/MacOS/Data", "#!/bin/sh\n");
  fs::create_directories(folder.path("Folder.app/Contents/MacOS/Folder"));
  fs::permissions(folder.write("no interpreter", "#!/no/such/program\n"), fs::perms::owner_all);
  const auto cases = tests::cases("executables.txt", {"launches", "runs"}, folder.path());
  const fs::path before = fs::current_path();
  fs::current_path(folder.path());
  for (const tests::Case& each : cases) {
    SCOPED_TRACE(each.written);
    const std::string expected = each.has("runs") ? program(each["runs"]) : std::string();
    EXPECT_NE(launch(each["launches"]).empty(), each.has("runs"));
    EXPECT_TRUE(expected.empty() || fs::equivalent(folder.read("home/program"), expected));
  }
  fs::current_path(before);
}

}  // namespace
}  // namespace platform
