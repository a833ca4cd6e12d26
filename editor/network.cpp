#include "editor/network.h"

namespace editor {

PortSetting::PortSetting(ControlGroup& group, Key key, Echo echo)
    : ComboBoxSetting(group, key, {.heading = Announcement::Heading::keyText}), echo_(echo) {}

void PortSetting::show() {
  box.removeAllItems();
  box.addItem(value());
  box.selectItem(0);
}

void PortSetting::edited() {
  ComboBoxSetting::edited();
  if (echo_ == Echo::optionalAndValue) {
    print(platform::optionalText(value()));
  }
  print(value());
}

void PortSetting::typed(const std::string& text) {
  setValue(text);
  box.removeAllItems();
  box.addItem(text);
}

}  // namespace editor
