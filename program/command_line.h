#pragma once

#include <string>

namespace program {

/// What the program was asked to do.
struct CommandLine {
  enum class Task { showWindow, start, check, help, version, refuse };

  Task task = Task::showWindow;
  std::string refused;  // the argument that nobody knows
};

CommandLine parseCommandLine(int argc, const char* const* argv);

/// What --help prints.
std::string usage();

}  // namespace program
