#include "platform/panels.h"

namespace platform {

std::vector<Location> thatFitALine(const std::vector<Location>& chosen, Output& output) {
  std::vector<Location> fitting;
  for (const Location& location : chosen) {
    if (location.path().find('\n') == std::string::npos) {
      fitting.push_back(location);
    } else {
      output.print("A line feed cannot stand in the preferences file: ", location.text());
    }
  }
  return fitting;
}

}  // namespace platform
