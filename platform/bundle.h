#pragma once

#include <string>
#include <string_view>

#include "platform/location.h"

namespace platform {

/// An application bundle: a folder with Contents/MacOS and Contents/Resources.
class Bundle {
 public:
  /// `path` is absolute, without a last "/".
  explicit Bundle(std::string path) : path_(std::move(path)) {}

  /// The bundle of the running program, found from the executable itself, so that it works through
  /// links and wherever the folder is moved.
  static Bundle mainBundle();

  [[nodiscard]] const std::string& path() const { return path_; }

  /// The location of the folder that holds the bundle, ending in "/".
  [[nodiscard]] Location folder() const { return Location::fromPath(path_).folder(); }

  /// Where the resource of that file name is, whether it exists or not.
  [[nodiscard]] std::string resource(std::string_view name) const {
    return path_ + "/Contents/Resources/" + std::string(name);
  }

 private:
  std::string path_;
};

}  // namespace platform
