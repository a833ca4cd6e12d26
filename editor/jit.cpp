#include "editor/jit.h"

#include <algorithm>

#include "platform/text.h"

namespace editor {

JitCacheSetting::JitCacheSetting(ControlGroup& group)
    : ComboBoxSetting(group, Key::jitcachesize, {.heading = Announcement::Heading::keyText}),
      jitCacheSizes_{"2048", "4096", "8192", "16384"} {}

void JitCacheSetting::fill() {
  if (std::find(jitCacheSizes_.begin(), jitCacheSizes_.end(), value()) == jitCacheSizes_.end()) {
    jitCacheSizes_.push_back(value());
  }
  box.addItems(jitCacheSizes_);
  select(value());
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
  jitCacheSizes_.push_back(text);
  box.addItem(text);
}

}  // namespace editor
