#include "editor/jit.h"

#include "platform/text.h"

namespace editor {

JitCacheSetting::JitCacheSetting(ControlGroup& group)
    : ComboBoxSetting(group, Key::jitcachesize, {.heading = Announcement::Heading::keyText}) {
  box.addItems({"2048", "4096", "8192", "16384"});
}

bool JitCacheSetting::knows(std::string_view value) const {
  const auto kilobytes = platform::parseInt32(value);
  return kilobytes && *kilobytes > 0;
}

void JitCacheSetting::jitCachSize() {
  ComboBoxSetting::edited();
  print(value());
}

void JitCacheSetting::typed(const std::string& text) {
  setValue(text);
  box.addItem(text);
}

}  // namespace editor
