#include "editor/shapes.h"

#include <filesystem>
#include <utility>

#include "platform/files.h"
#include "platform/text.h"
#include "platform/translatable.h"

namespace editor {

CheckBoxSetting::CheckBoxSetting(ControlGroup& group, Key key, Echo echo, Announcement announcement)
    : Setting(group, key, announcement), box(outletOf(key)), echo_(echo) {
  box.action = [this] { clicked(); };
}

void CheckBoxSetting::show() { box.setOn(value() != "false"); }

std::string CheckBoxSetting::shownText(std::string_view value) const {
  return value == "false" ? platform::translatable("Help", "off")
                          : platform::translatable("Help", "on");
}

std::vector<std::string> CheckBoxSetting::shown() const {
  return {CheckBoxSetting::shownText(box.isOn() ? "true" : "false")};
}

void CheckBoxSetting::clicked() {
  if (box.state() == platform::State::mixed && echo_ != Echo::truth) {
    return;
  }
  const bool on = box.state() != platform::State::off;
  const char* const text = on ? "true" : "false";
  print(echo_ == Echo::truth ? text : on ? "1" : "0");
  if (echo_ == Echo::stateOnOff) {
    print(on ? "on" : "off");
  }
  setValue(text);
}

TextFieldSetting::TextFieldSetting(ControlGroup& group, Key key, Announcement announcement)
    : Setting(group, key, announcement), field(outletOf(key)) {
  field.action = [this] { committed(); };
}

void TextFieldSetting::committed() {
  if (field.stringValue() != value()) {
    setValue(field.stringValue());
  }
  print(value());
}

void TextFieldSetting::takeChosen(const std::vector<platform::Location>& chosen) {
  const auto fitting = platform::thatFitALine(chosen, group().output);
  if (!fitting.empty()) {
    const std::string path = fitting.front().path();
    assign(path);
    print(path);
  }
}

ComboBoxSetting::ComboBoxSetting(ControlGroup& group, Key key, Announcement announcement)
    : Setting(group, key, announcement), box(outletOf(key)) {
  box.action = [this] { edited(); };
}

void ComboBoxSetting::edited() {
  if (const auto index = box.indexOfSelectedItem()) {
    chosen(*index);
  } else {
    typed(box.stringValue());
  }
}

void selectOrAdd(platform::ComboBox& box, const std::string& text) {
  if (!box.selectItemWithText(text)) {
    box.addItem(text);
    box.selectItem(box.items().size() - 1);
  }
}

StepperSetting::StepperSetting(ControlGroup& group, Key key, std::string stepperName,
                               platform::Stepper::Range range, std::string_view echo,
                               Announcement announcement)
    : Setting(group, key, announcement),
      field(outletOf(key)),
      stepper(std::move(stepperName), range),
      echo_(echo) {
  // Only the arrows change the value: text typed into the field would be ignored.
  field.setEditable(false);
  stepper.action = [this] { stepped(); };
}

bool StepperSetting::knows(std::string_view value) const {
  const auto number = platform::parseInt32(value);
  return number && *number >= stepper.range().minimum && *number <= stepper.range().maximum;
}

void StepperSetting::show() {
  field.setStringValue(value());
  // Where the value is no number, the arrows begin at the default.
  const auto number = platform::parseInt32(value());
  const auto defaultNumber = platform::parseInt32(row().defaultValue);
  stepper.setIntegerValue(number.value_or(defaultNumber.value_or(stepper.range().minimum)));
}

void StepperSetting::stepped() {
  const std::string text = std::to_string(stepper.integerValue());
  print(text);
  field.setStringValue(text);
  setValue(text);
  print(echo_, text);
}

PopUpSetting::PopUpSetting(ControlGroup& group, Key key, const std::vector<std::string>& titles,
                           Announcement announcement)
    : Setting(group, key, announcement), button(outletOf(key)) {
  button.addItems(titles);
  button.action = [this] { chosen(button.indexOfSelectedItem().value_or(0)); };
}

std::string PopUpSetting::shownText(std::string_view value) const {
  const std::size_t entry = entryOf(value);
  return entry < button.items().size() ? button.items()[entry] : std::string(value);
}

std::vector<std::string> PopUpSetting::shown() const {
  return {button.items().at(button.indexOfSelectedItem().value_or(0))};
}

FileButton::FileButton(std::string name, TextFieldSetting& setting, platform::Panels& panels,
                       const char* title)
    : button(std::move(name)), setting_(setting), panels_(panels), title_(title) {
  button.action = [this] { browse(); };
}

void FileButton::browse() {
  platform::OpenPanel panel;
  panel.asker = button.name();
  panel.title = title_;
  panel.directory = folderOf(setting_.field.stringValue());
  panels_.begin(panel, [this](const std::vector<platform::Location>& chosen) {
    setting_.takeChosen(chosen);
  });
}

std::string folderOf(const std::string& path) {
  const std::string folder = std::filesystem::path(path).parent_path().string();
  return path.starts_with('/') && platform::fileExists(folder) ? folder : std::string();
}

}  // namespace editor
