#include "editor/input.h"

namespace editor {

RawKeysSetting::RawKeysSetting(ControlGroup& group, TextFieldSetting& file)
    : CheckBoxSetting(group, Key::keycodes, Echo::state,
                      {.heading = Announcement::Heading::keyText,
                       .form = Announcement::Form::line,
                       .label = "results9: "}),
      file_(file) {}

void RawKeysSetting::fill() {
  if (value() == "true" || value() == "false") {
    box.setOn(value() == "true");
    file_.field.setEnabled(box.isOn());
  }
}

void RawKeysSetting::rawKeycodes() {
  if (box.state() != platform::State::mixed) {
    file_.field.setEnabled(box.isOn());
  }
  CheckBoxSetting::clicked();
}

MouseWheelSetting::MouseWheelSetting(ControlGroup& group)
    : PopUpSetting(group, Key::mousewheelmode, {"Page up / page down", "Cursor up / down"},
                   {.heading = Announcement::Heading::keyText}) {}

void MouseWheelSetting::fill() {
  const bool cursor = value() == "1";
  setValue(cursor ? "1" : "0");
  button.selectItem(cursor ? 1 : 0);
}

void MouseWheelSetting::mouseWheel(std::size_t index) {
  print(std::to_string(index));
  setValue(index == 0 ? "0" : "1");
}

}  // namespace editor
