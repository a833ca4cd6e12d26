// Texts as locations, and as paths of locations.

#include "fuzz/support.h"
#include "platform/location.h"

namespace {

using platform::Location;

void checkPath(const std::string& path) {
  const Location location = Location::fromPath(path);
  const bool cut = path.size() > 1 && path.back() == '/';
  fuzz::check(location.path() == path.substr(0, path.size() - (cut ? 1 : 0)),
              "a path comes back but for a last slash");
  fuzz::check(location.isFile() == path.starts_with('/'), "an absolute path is a file");
  const auto parsed = Location::fromText(location.text());
  fuzz::check(path.empty() ? !parsed : parsed == location, "a location is a valid text");
  fuzz::check(platform::percentDecoded(platform::percentEncoded(path)) == path,
              "encoding is exact");
}

void checkText(const std::string& text) {
  const auto location = Location::fromText(text);
  const std::string shown = platform::optionalText(location);
  if (!location) {
    fuzz::check(shown == "nil", "no location is shown as none");
    return;
  }
  fuzz::check(location->text() == text, "a location keeps its text");
  fuzz::check(!location->isFile() || location->path().starts_with('/'), "a file has a full path");
  const std::string folder = location->folder().text();
  fuzz::check(folder.empty() || (folder.back() == '/' && text.starts_with(folder)),
              "a folder is the beginning of the location");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = fuzz::textOf(data, size);
  checkPath(text);
  checkText(text);
  return 0;
}
