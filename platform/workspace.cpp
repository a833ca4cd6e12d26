#include "platform/workspace.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <filesystem>
#include <vector>

#include "platform/descriptor.h"
#include "platform/files.h"
#include "platform/property_list.h"

namespace platform {
namespace {

// Between fork and exec only system calls are allowed, since the window's libraries may have had
// locks taken. Everything that needs memory is made ready before.
struct Start {
  char* const* arguments;  // the executable first, a null pointer last
  const char* folder;
  int report;  // closed by a successful exec, told otherwise
};

void closeFilesButStandard(int kept) {
#ifdef __linux__
  const auto keep = static_cast<unsigned>(kept);
  if ((keep == 3 || ::close_range(3, keep - 1, 0) == 0) && ::close_range(keep + 1, ~0U, 0) == 0) {
    return;
  }
#endif
  const auto limit = static_cast<int>(::sysconf(_SC_OPEN_MAX));
  for (int number = 3; number < limit; ++number) {
    if (number != kept) {
      ::close(number);
    }
  }
}

void reportFailure(const Start& start) {
  const char failed = 1;
  (void)!::write(start.report, &failed, 1);
}

[[noreturn]] void runApplication(const Start& start) {
  // main() ignores these two signals, and an ignored signal stays ignored across execv().
  ::signal(SIGPIPE, SIG_DFL);
  ::signal(SIGXFSZ, SIG_DFL);
  const int input = ::open("/dev/null", O_RDONLY);
  if (input > 0) {
    ::dup2(input, STDIN_FILENO);
  }
  closeFilesButStandard(start.report);
  if (::chdir(start.folder) == 0 || ::chdir("/") == 0) {
    ::execv(start.arguments[0], start.arguments);
  }
  reportFailure(start);
  ::_exit(127);
}

// Starts the application from a child that ends at once, so that the application belongs to the
// system and never becomes a zombie of ours.
bool startDetached(std::vector<std::string> command, const std::string& folder) {
  std::array<int, 2> ends{};
  if (::pipe(ends.data()) != 0) {
    return false;
  }
  const Descriptor reading(ends[0]);
  Descriptor writing(ends[1]);
  if (::fcntl(writing.get(), F_SETFD, FD_CLOEXEC) != 0) {
    return false;
  }
  std::vector<char*> arguments;
  arguments.reserve(command.size() + 1);
  for (std::string& word : command) {
    arguments.push_back(word.data());
  }
  arguments.push_back(nullptr);
  const Start start{arguments.data(), folder.c_str(), writing.get()};
  const pid_t child = ::fork();
  if (child < 0) {
    return false;
  }
  if (child == 0) {
    ::setsid();
    const pid_t application = ::fork();
    if (application == 0) {
      runApplication(start);
    }
    if (application < 0) {
      reportFailure(start);
    }
    ::_exit(0);
  }
  writing.close();
  // The result is not looked at: with SIGCHLD ignored by our parent waitpid() fails with ECHILD,
  // and the pipe tells of a failure in any case.
  retried([&] { return ::waitpid(child, nullptr, 0); });
  char failed = 0;
  return retried([&] { return ::read(reading.get(), &failed, 1); }) == 0;
}

bool isExecutableFile(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
         ::access(path.c_str(), X_OK) == 0;
}

}  // namespace

std::string executableOf(const std::string& application) {
  std::error_code error;
  if (!std::filesystem::is_directory(application, error)) {
    return application;
  }
  std::filesystem::path bundle(application);
  if (!bundle.has_filename()) {
    bundle = bundle.parent_path();
  }
  const std::filesystem::path programs = bundle / "Contents" / "MacOS";
  if (const auto info = PropertyList::read(bundle / "Contents" / "Info.plist", error)) {
    const auto name = info->text("CFBundleExecutable");
    if (name && name->find('/') == std::string::npos && isExecutableFile(programs / *name)) {
      return programs / *name;
    }
  }
  return programs / bundle.stem();
}

bool ProcessWorkspace::launchApplication(const std::string& path) {
  if (path.empty() || path.find('\0') != std::string::npos) {
    return false;
  }
  std::error_code error;
  const std::string application = std::filesystem::absolute(path, error);
#ifdef __APPLE__
  return fileExists(application) && startDetached({"/usr/bin/open", application}, homeDirectory_);
#else
  const std::string executable = executableOf(application);
  return isExecutableFile(executable) && startDetached({executable}, homeDirectory_);
#endif
}

}  // namespace platform
