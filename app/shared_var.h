#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "platform/location.h"
#include "platform/tab_view.h"

namespace app {

/// Where the emulator is looked for; other numbers are kept but select nothing.
enum StartFlag : std::int64_t { startNone = 0, startCustom = 1, startLocal = 2 };

/// What the windows tell each other through. One set for the whole process, with no instances.
struct sharedVar {
  sharedVar() = delete;

  static inline std::string pathToQuil;      // the emulator that Start launches
  static inline std::string pathToQuilRoot;  // the folder of the front-end, ending in "/"
  static inline std::int64_t startFlag = startNone;
  static inline bool startState = false;                      // whether Start is enabled
  static inline std::optional<platform::Location> localPath;  // the folder of the front-end
  static inline bool scsiTabState = false;                    // whether the SCSI tab is shown
  static inline bool quitGUI = false;  // whether the front-end ends after Start
  static inline std::shared_ptr<platform::View> newScsiTab;  // the SCSI tab's content
};

}  // namespace app
