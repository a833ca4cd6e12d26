#include "editor/presets.h"

namespace editor {

Presets::Presets()
    : presetsMenu{
          {platform::Button("mac701", "System 7.0.1"), platform::Button("mac710", "System 7.1"),
           platform::Button("mac753", "System 7.5.3"), platform::Button("mac761", "System 7.6.1"),
           platform::Button("mac810", "Mac OS 8.1")}} {
  for (platform::Button& item : presetsMenu) {
    item.action = [&item] { toggle(item); };
  }
}

void Presets::toggle(platform::Button& item) { item.setOn(item.state() == platform::State::off); }

}  // namespace editor
