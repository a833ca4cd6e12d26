#include <fcntl.h>
#include <pwd.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <string>

#include "desktop/run.h"

namespace {

// A file opened in the place of a closed standard stream would get the diagnostics.
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

}  // namespace

int main(int argc, char** argv) {
  openStandardStreams();
  std::signal(SIGPIPE, SIG_IGN);
  platform::DescriptorOutput output(STDOUT_FILENO);
  const std::string home = homeDirectory();
  const std::string config = variable("XDG_CONFIG_HOME");
  return desktop::run(argc, argv,
                      {home, config.starts_with('/') ? config : home + "/.config",
                       platform::Bundle::mainBundle(), output});
}
