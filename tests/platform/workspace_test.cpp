#include "platform/workspace.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <sstream>
#include <thread>

#include "platform/bundle.h"
#include "platform/descriptor.h"
#include "tests/support/data.h"
#include "tests/support/temporary_folder.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

// Leaves its findings in the file "found" of its working directory.
constexpr auto script = R"(#!/bin/sh
cat /proc/$$/environ >environment
printf %s "$0" >program
{ readlink /proc/self/fd/0; cut -d' ' -f6 /proc/self/stat
  sed -n 's/^SigIgn:.//p' /proc/self/status; echo $(ls /proc/self/fd); } >found.new
mv found.new found
)";

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
  ::setenv("B", "two words\n", 1);
  const auto former = ::signal(SIGPIPE, SIG_IGN);
  const Descriptor open(::open("/dev/null", O_RDONLY));
  const Descriptor high(::fcntl(open.get(), F_DUPFD, 200));
  std::istringstream found(launch(program("program")));
  ::signal(SIGPIPE, former);
  std::string input, session, ignored, descriptors;
  found >> input >> session >> ignored;
  std::getline(found >> std::ws, descriptors);
  EXPECT_EQ(input, "/dev/null") << found.str();
  EXPECT_NE(session, std::to_string(::getsid(0)));
  EXPECT_EQ(std::stoull("0" + ignored, nullptr, 16) >> (SIGPIPE - 1U) & 1U, 0U);
  EXPECT_EQ(descriptors, "0 1 2 3") << "the last is the listing's own";
  const std::string environment = folder.read("home/environment");
  EXPECT_NE(environment.find(std::string("B=two words\n\0", 13)), environment.npos);
  EXPECT_TRUE(::waitpid(-1, nullptr, WNOHANG) == -1 && errno == ECHILD);
}

TEST_F(WorkspaceTest, FindsTheExecutable) {
  const std::string start = "<plist><dict><key>CFBundleExecutable</key><string>";
  folder.write("Q.app/Contents/Info.plist", start + "emulator</string></dict></plist>");
  folder.write("Up.app/Contents/Info.plist", start + "../../evil</string></dict></plist>");
  (void)program("Up.app/evil");
  const auto cases = tests::cases("executables.txt", {"launches", "runs"}, folder.path());
  const fs::path before = fs::current_path();
  fs::current_path(folder.path());
  for (const tests::Case& each : cases) {
    const std::string expected = program(each["runs"]);
    EXPECT_NE(launch(each["launches"]), "") << each.written;
    EXPECT_TRUE(fs::equivalent(folder.read("home/program"), expected)) << each.written;
  }
  fs::current_path(before);
}

TEST_F(WorkspaceTest, TellsWhatCannotBeStarted) {
  const std::string data = folder.write("Data.app/Contents/MacOS/Data", "#!/bin/sh\n");
  fs::create_directories(folder.path("Folder.app/Contents/MacOS/Folder"));
  fs::permissions(folder.write("no interpreter", "#!/no/such/program\n"), fs::perms::owner_all);
  const std::string cut = program("cut") + std::string("\0.app", 5);
  for (const std::string& path :
       {folder.path("none"), data, folder.path("Data.app"), data + "/below",
        folder.path("Folder.app"), folder.path("no interpreter"), std::string(), cut}) {
    EXPECT_FALSE(workspace.launchApplication(path)) << path;
  }
}

}  // namespace
}  // namespace platform
