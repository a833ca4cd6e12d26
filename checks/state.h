#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "document/key_table.h"
#include "platform/file_stamp.h"

namespace checks {

/// What the window knows of one setting.
struct SettingState {
  std::string value;                     // as a save would write it now
  std::string fileValue;                 // as it was read, or written since
  std::optional<std::string> foundLine;  // where it was read, while nobody has changed it
  bool isKnown = true;                   // whether the control has a way to show `value`,
  bool fileValueIsKnown = true;          // or `fileValue`
  std::vector<std::string> shown;        // what the control shows now, in one or more parts
};

/// What the window knows of the preferences file.
struct PreferencesState {
  std::optional<std::string> path;           // where a save goes; none: the place names no file
  std::string readError{};                   // why it could not be read; empty: it could
  std::string saveError{};                   // why the last save failed; empty: it did not
  std::optional<platform::FileStamp> stamp;  // when it was read or written; none: it was not
};

/// All that findings are about and that is known without asking the file system.
struct State {
  std::array<SettingState, document::keyCount> settings;
  std::vector<std::string> disks;  // paths
  PreferencesState preferences;
  bool isStartEnabled = true;
  std::string pathToQuil;     // what Start launches
  std::string homeDirectory;  // where relative paths begin: the emulator is started there

  [[nodiscard]] const SettingState& of(document::Key key) const {
    return settings[document::indexOf(key)];
  }
  [[nodiscard]] const std::string& value(document::Key key) const { return of(key).value; }

  /// Whether somebody has chosen the file or folder that a key stands for.
  [[nodiscard]] bool isChosen(document::Key key) const {
    return !value(key).empty() && value(key) != document::rowOf(key).defaultValue;
  }
};

}  // namespace checks
