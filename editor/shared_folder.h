#pragma once

#include "editor/shapes.h"

namespace editor {

/// The folder that the emulated machine shares with this computer.
class SharedFolderGroup : public ControlGroup {
 public:
  SharedFolderGroup(document::Preferences& values, platform::Output& diagnostics,
                    platform::Panels& choosers);

  TextFieldSetting unixRootPath{*this, Key::extfs, {.heading = Announcement::Heading::named}};
  platform::Button unixRoot{"unixRoot"};

 private:
  void chooseFolder();
};

}  // namespace editor
