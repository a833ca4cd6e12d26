// Lines of disk images, to locations and back.

#include <sstream>

#include "fuzz/support.h"
#include "volumes/volume_list.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::vector<std::string> lines;
  std::vector<std::string> expected;
  std::istringstream input(fuzz::textOf(data, size));
  for (std::string line; std::getline(input, line); lines.push_back(line)) {
    if (line.starts_with("disk ") && line.size() > 5) {
      expected.push_back(line.substr(5));
      if (line.size() > 6 && line.back() == '/') {
        expected.back().pop_back();
      }
    }
  }
  fuzz::SwallowingOutput output;
  volumes::VolumeList list(output);
  list.load({lines.begin(), lines.end()});
  fuzz::check(list.paths() == expected, "each path comes back but for a last slash");
  fuzz::check(list.volName() == list.volLocal(), "two lists of the same locations");
  fuzz::check(list.volSize().size() == list.size() && list.volType().size() == list.size(),
              "four lists of the same length");
  for (const platform::Location& location : list.volName()) {
    fuzz::check(platform::Location::fromText(location.text()) == location, "a valid location");
  }
  return 0;
}
