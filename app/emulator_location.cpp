#include "app/emulator_location.h"

#include <string_view>

#include "app/shared_var.h"
#include "platform/files.h"

namespace app {
namespace {

std::string replacedAll(std::string text, std::string_view part, std::string_view by) {
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + by.size())) {
    text.replace(at, part.size(), by);
  }
  return text;
}

}  // namespace

void findLocalPath(const platform::Bundle& bundle, platform::Output& output) {
  sharedVar::localPath = bundle.folder();
  output.print("local path is: ", sharedVar::localPath->path());
  sharedVar::pathToQuilRoot =
      replacedAll(replacedAll(sharedVar::localPath->text(), "file://", ""), "%20", " ");
}

void applyLocalRule(platform::Output& output) {
  if (sharedVar::startFlag == startLocal && !sharedVar::pathToQuilRoot.empty()) {
    sharedVar::pathToQuil = localEmulator();
    output.print("local path is enabled: ", sharedVar::pathToQuil);
  }
}

std::string ownFolder() {
  if (!sharedVar::localPath) {
    return sharedVar::pathToQuilRoot;
  }
  std::string folder = sharedVar::localPath->path();
  if (!folder.ends_with('/')) {
    folder += '/';
  }
  return folder;
}

std::string emulatorPath() {
  const std::string& path = sharedVar::pathToQuil;
  const std::string& root = sharedVar::pathToQuilRoot;
  if (!path.starts_with(root)) {
    return path;
  }
  // A typed path may begin with the same text as pathToQuilRoot and exist as it stands.
  const bool isTyped = path != localEmulator() && platform::fileExists(path);
  return isTyped ? path : ownFolder() + path.substr(root.size());
}

std::string localEmulator() { return sharedVar::pathToQuilRoot + "/Quillon.app"; }

}  // namespace app
