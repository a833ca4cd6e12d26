#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "app/settings_store.h"
#include "document/preferences.h"
#include "editor/display.h"
#include "editor/input.h"
#include "editor/jit.h"
#include "editor/machine.h"
#include "editor/network.h"
#include "editor/presets.h"
#include "editor/saved_state.h"
#include "editor/shared_folder.h"
#include "editor/tabs.h"
#include "platform/host.h"
#include "volumes/volume_table.h"

namespace editor {

/// Whether the two steps of a start succeeded.
struct StartResult {
  bool saved;
  bool launched;
};

/// How a save or a start went.
struct Outcome {
  enum class Kind { saved, notSaved, started, notStarted };

  Kind kind = Kind::saved;
  std::size_t number = 0;  // one more each time; 0: neither has happened yet
};

/// The settings window: owns the document, the volumes and the control groups, fills them at
/// start-up and writes them back.
class ViewController {
 public:
  explicit ViewController(const platform::Host& host);

  /// The start-up sequence: reads everything and fills every control. Once, before the window is
  /// shown.
  void viewDidLoad(
      document::Preferences::IfMissing ifMissing = document::Preferences::IfMissing::create);

  /// Becomes the delegate of the window that is about to be shown.
  void viewWillAppear(platform::Window& window);

  /// Saves as Start does; returns whether the file was written.
  bool savePrefsAny();

  /// Saves and launches the emulator, whether or not the save went well.
  StartResult saveAndLaunch();

  /// How the last save or start went.
  [[nodiscard]] const Outcome& outcome() const { return outcome_; }

  /// The text that a save would write now.
  [[nodiscard]] std::string textToSave() const;

  /// The settings by index.
  [[nodiscard]] const std::array<Setting*, document::keyCount>& settingsInKeyOrder() const {
    return settings_;
  }

  document::Preferences preferences;
  volumes::VolumeTable volumes;
  SharedFolderGroup sharedFolder;
  DisplayGroup display;
  NetworkGroup network;
  MachineGroup machine;
  InputGroup input;
  JitGroup jit;
  Presets presets;
  Tabs tabs;
  SavedState saved{settings_, machine, volumes};

  platform::Button bitCreate{"bitCreate"};  // the window decides what it opens
  platform::TextField filename_field{"filename_field"};
  platform::Button copyPrefs{"copyPrefs"};
  platform::Button savePrefs{"savePrefs"};
  platform::Button startQuil{"startQuil"};
  platform::Button isQuit{"isQuit"};

 private:
  void connectActions();
  /// Returns the emulator's location as it stands in the front-end's settings.
  std::string loadFrontEndSettings();
  void happened(Outcome::Kind kind);
  bool save(std::string_view finalMessage);
  void startButton();
  void isStartEnabled();
  void windowWillClose();

  platform::Host host_;
  app::SettingsStore store_;
  platform::Subscription preferencesDone_;
  std::array<Setting*, document::keyCount> settings_;  // by index
  Outcome outcome_;
};

}  // namespace editor
