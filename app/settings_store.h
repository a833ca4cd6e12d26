#pragma once

#include <string>

#include "platform/host.h"
#include "platform/property_list.h"

namespace app {

/// The front-end's own settings: read into `sharedVar` at start-up, written back on request. They
/// stay in the bundle where it is writable; else each person has a file of their own, which begins
/// as the bundle's.
class SettingsStore {
 public:
  explicit SettingsStore(const platform::Host& host);

  /// Reads the settings. A setting that is missing or of another type takes the shipped value and
  /// is named in the diagnostics.
  void load();

  /// Takes the settings over from `sharedVar` and writes all of them.
  void writeBack();

 private:
  void writePlist();

  platform::Output& output_;
  std::string shipped_;  // the bundle's file
  std::string file_;     // the one that is written
  platform::PropertyList dict_;
};

}  // namespace app
