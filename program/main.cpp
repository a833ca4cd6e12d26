#include <fcntl.h>
#include <pwd.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <string>

#include "desktop/run.h"
#include "program/check_command.h"
#include "program/command_line.h"
#include "program/start_command.h"

namespace {

// If standard output is closed, the next file that is opened becomes descriptor 1, and the
// diagnostics would be written into it: the preferences file, say.
void openStandardStreams() {
  for (int number = 0; number <= STDERR_FILENO; ++number) {
    if (::fcntl(number, F_GETFD) == -1) {
      (void)::open("/dev/null", number == 0 ? O_RDONLY : O_WRONLY);
    }
  }
}

std::string variable(const char* name) {
  const char* const value = std::getenv(name);
  return value != nullptr ? value : "";
}

std::string homeDirectory() {
  std::string home = variable("HOME");
  if (!home.starts_with('/')) {
    const passwd* const user = ::getpwuid(::getuid());
    home = user != nullptr ? user->pw_dir : "/";
  }
  while (home.size() > 1 && home.ends_with('/')) {
    home.pop_back();
  }
  return home;
}

std::string folderOf(const char* name, const std::string& usual) {
  const std::string folder = variable(name);
  return folder.starts_with('/') ? folder : usual;
}

}  // namespace

int main(int argc, char** argv) {
  openStandardStreams();
  // SIGPIPE (a reader that went away) and SIGXFSZ (a limit on file sizes) would end the program in
  // the middle of a save. Ignored, write() fails with EPIPE or EFBIG instead.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);

  const program::CommandLine line = program::parseCommandLine(argc, argv);
  if (line.task == program::CommandLine::Task::refuse) {
    std::cerr << "quillon-settings: unknown option '" << line.refused << "'\n" << program::usage();
    return 2;
  }
  if (line.task == program::CommandLine::Task::help) {
    std::cout << program::usage() << std::flush;
    return 0;
  }
  if (line.task == program::CommandLine::Task::version) {
    std::cout << "quillon-settings " << QUILLON_VERSION << std::endl;
    return 0;
  }

  const platform::Bundle bundle = platform::Bundle::mainBundle();
  const std::string home = homeDirectory();
  const std::string config = folderOf("XDG_CONFIG_HOME", home + "/.config");
  if (line.task == program::CommandLine::Task::check) {
    return program::checkWithoutWindow(home, config, bundle);
  }
  const std::string data = folderOf("XDG_DATA_HOME", home + "/.local/share");
  platform::DescriptorOutput output(STDOUT_FILENO);
  return line.task == program::CommandLine::Task::start
             ? program::startWithoutWindow(home, config, bundle, output)
             : desktop::run(argc, argv, {home, config, data, bundle, output, QUILLON_VERSION});
}
