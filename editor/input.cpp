#include "editor/input.h"

#include "platform/translatable.h"

namespace editor {

RawKeysSetting::RawKeysSetting(ControlGroup& group, TextFieldSetting& file)
    : CheckBoxSetting(group, Key::keycodes, Echo::state,
                      {.heading = Announcement::Heading::keyText,
                       .form = Announcement::Form::line,
                       .label = "results9: "}),
      file_(file) {
  file.setEnabledBy(*this);
}

// Any other value than the two leaves the box off and the field open, as they are in a new window.
void RawKeysSetting::show() {
  box.setOn(value() == "true");
  file_.field.setEnabled(value() != "false");
}

std::string RawKeysSetting::shownText(std::string_view value) const {
  return CheckBoxSetting::shownText(value == "true" ? "true" : "false");
}

void RawKeysSetting::rawKeycodes() {
  if (box.state() != platform::State::mixed) {
    file_.field.setEnabled(box.isOn());
  }
  CheckBoxSetting::clicked();
}

MouseWheelSetting::MouseWheelSetting(ControlGroup& group)
    : PopUpSetting(group, Key::mousewheelmode,
                   {platform::translatable("Items", "Page up / page down"),
                    platform::translatable("Items", "Cursor up / down")},
                   {.heading = Announcement::Heading::keyText}) {}

std::size_t MouseWheelSetting::entryOf(std::string_view value) const {
  return value == "1" ? 1 : 0;
}

void MouseWheelSetting::show() {
  setValue(entryOf(value()) == 1 ? "1" : "0");
  PopUpSetting::show();
}

void MouseWheelSetting::mouseWheel(std::size_t index) {
  print(std::to_string(index));
  setValue(index == 0 ? "0" : "1");
}

}  // namespace editor
