#pragma once

#include <string>

#include "platform/bundle.h"
#include "platform/output.h"

namespace desktop {

/// What the program found out about its surroundings before any window is made.
struct Surroundings {
  std::string homeDirectory;
  std::string configHome;
  std::string dataHome;
  platform::Bundle bundle;
  platform::Output& output;
  const char* version;
};

/// Shows the settings window and returns, when the application ends, its exit status.
int run(int& argc, char** argv, const Surroundings& surroundings);

}  // namespace desktop
