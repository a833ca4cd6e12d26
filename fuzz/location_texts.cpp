// Texts as locations, and as paths of locations.

#include "platform/location.h"
#include "tests/support/fuzz.h"

namespace {

using platform::Location;
using tests::check;

void checkPath(const std::string& path) {
  const Location location = Location::fromPath(path);
  const bool losesSlash = path.size() > 1 && path.back() == '/';
  check(location.path() == path.substr(0, path.size() - (losesSlash ? 1 : 0)),
        "a path comes back but for a last slash");
  check(location.isFile() == path.starts_with('/'), "an absolute path is a file");
  const auto parsed = Location::fromText(location.text());
  check(path.empty() ? !parsed : parsed == location, "a location is a valid text");
}

void checkText(const std::string& text) {
  const auto location = Location::fromText(text);
  if (location) {
    check(location->text() == text, "a location keeps its text");
    check(!location->isFile() || location->path().starts_with('/'), "a file has a full path");
    check(text.starts_with(location->folder().text()), "a location begins with its folder");
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = tests::textOf(data, size);
  checkPath(text);
  checkText(text);
  return 0;
}
