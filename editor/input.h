#pragma once

#include "editor/shapes.h"
#include "platform/translatable.h"

namespace editor {

/// Raw key codes, which open the field for their file.
class RawKeysSetting : public CheckBoxSetting {
 public:
  RawKeysSetting(ControlGroup& group, TextFieldSetting& file);

  [[nodiscard]] std::string shownText(std::string_view value) const override;

 protected:
  void show() override;
  void clicked() override { rawKeycodes(); }

 private:
  void rawKeycodes();

  TextFieldSetting& file_;
};

class MouseWheelSetting : public PopUpSetting {
 public:
  explicit MouseWheelSetting(ControlGroup& group);

  [[nodiscard]] bool knows(std::string_view value) const override {
    return value == "0" || value == "1";
  }

 protected:
  [[nodiscard]] std::size_t entryOf(std::string_view value) const override;
  void show() override;
  void chosen(std::size_t index) override { mouseWheel(index); }

 private:
  void mouseWheel(std::size_t index);
};

/// Sound, keyboard and mouse.
class InputGroup : public ControlGroup {
 public:
  using ControlGroup::ControlGroup;

  CheckBoxSetting disableSound{*this,
                               Key::nosound,
                               CheckBoxSetting::Echo::state,
                               {.form = Announcement::Form::value, .label = "noaudio :"}};
  Setting keyboardtype{*this, Key::keyboardtype, {.form = Announcement::Form::line}};
  TextFieldSetting rawKeyFile{*this,
                              Key::keycodefile,
                              {.heading = Announcement::Heading::keyText,
                               .form = Announcement::Form::matches,
                               .label = "results10: "}};
  RawKeysSetting rawKeys{*this, rawKeyFile};
  FileButton rawKeyFileSelect{"rawKeyFileSelect", rawKeyFile, panels,
                              platform::translatable("Panels", "Choose the Key Code File")};
  MouseWheelSetting mouseWheel{*this};
  StepperSetting mouseScroll{
      *this,    Key::mousewheellines, "mouseScrollLvl",
      {1, 100}, "scrollLvl: ",        {.heading = Announcement::Heading::index}};
  TextFieldSetting audioOut{*this, Key::dsp, {.heading = Announcement::Heading::keyText}};
  TextFieldSetting audioMix{*this, Key::mixer, {.heading = Announcement::Heading::keyText}};
};

}  // namespace editor
