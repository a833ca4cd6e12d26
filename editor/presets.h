#pragma once

#include <array>

#include "platform/control.h"

namespace editor {

/// The presets menu. Its entries are check marks and change nothing else.
class Presets {
 public:
  Presets();

  std::array<platform::Button, 5> presetsMenu;

 private:
  static void toggle(platform::Button& item);
};

}  // namespace editor
