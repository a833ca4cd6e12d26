#include "program/command_line.h"

#include <array>
#include <string_view>

namespace program {
namespace {

struct Option {
  std::string_view name;
  CommandLine::Task task;
  std::string_view help;
};

constexpr std::array<Option, 4> options = {
    {{"--start", CommandLine::Task::start,
      "save the preferences, start Quillon and end; show no window"},
     {"--check", CommandLine::Task::check,
      "tell what keeps Quillon from starting and what else deserves a look"},
     {"--help", CommandLine::Task::help, "show this text"},
     {"--version", CommandLine::Task::version, "show the version"}}};

}  // namespace

CommandLine parseCommandLine(int argc, const char* const* argv) {
  CommandLine line;
  for (int index = 1; index < argc; ++index) {
    const std::string_view argument = argv[index];
    bool known = false;
    for (const Option& option : options) {
      if (option.name == argument) {
        line.task = option.task;
        known = true;
      }
    }
    if (!known) {
      return {CommandLine::Task::refuse, std::string(argument)};
    }
  }
  return line;
}

std::string usage() {
  std::string text =
      "Usage: quillon-settings [OPTION]\n"
      "Sets up Quillon, an emulator of 68k Macintosh computers, in a window.\n\n";
  for (const Option& option : options) {
    text.append("  ").append(option.name).append(12 - option.name.size(), ' ');
    text.append(option.help).append("\n");
  }
  return text;
}

}  // namespace program
