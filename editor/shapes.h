#pragma once

#include <string>
#include <string_view>

#include "editor/setting.h"
#include "platform/translatable.h"

namespace editor {

/// A value that is on unless it is exactly "false".
class CheckBoxSetting : public Setting {
 public:
  /// What the diagnostics say of a click.
  enum class Echo {
    state,       // the state's number
    stateOnOff,  // and below it "on" or "off"
    truth,       // "true" or "false"
  };

  CheckBoxSetting(ControlGroup& group, Key key, Echo echo, Announcement announcement = {});

  platform::Button box;

  [[nodiscard]] std::string shownText(std::string_view value) const override;
  [[nodiscard]] bool knows(std::string_view value) const override {
    return value == "true" || value == "false";
  }
  [[nodiscard]] std::vector<std::string> shown() const override;

 protected:
  void show() override;
  virtual void clicked();

 private:
  Echo echo_;
};

/// A value that is its text.
class TextFieldSetting : public Setting {
 public:
  TextFieldSetting(ControlGroup& group, Key key, Announcement announcement = {});

  platform::TextField field;

  /// Takes over the path that was chosen in a panel, if any was.
  void takeChosen(const std::vector<platform::Location>& chosen);

 protected:
  void show() override { field.setStringValue(value()); }

 private:
  void committed();
};

/// A value that is typed or chosen from a list.
class ComboBoxSetting : public Setting {
 public:
  ComboBoxSetting(ControlGroup& group, Key key, Announcement announcement = {});

  platform::ComboBox box;

 protected:
  virtual void typed(const std::string& text) = 0;
  virtual void chosen(std::size_t index) = 0;
  virtual void edited();
};

/// Selects the entry with that text, which becomes the last one when there is none.
void selectOrAdd(platform::ComboBox& box, const std::string& text);

/// A number that two arrows count up and down. Any other text stays in the field and in the file
/// until the arrows are used.
class StepperSetting : public Setting {
 public:
  /// `echo` begins the diagnostic line with the new value.
  StepperSetting(ControlGroup& group, Key key, std::string stepperName,
                 platform::Stepper::Range range, std::string_view echo, Announcement announcement);

  platform::TextField field;
  platform::Stepper stepper;

  [[nodiscard]] bool knows(std::string_view value) const override;

 protected:
  void show() override;

 private:
  void stepped();

  std::string_view echo_;
};

/// Follows a value of the file for which a list has no entry of its own.
inline constexpr std::string_view fromFile = platform::translatable("Items", " (from the file)");

/// A value of which each stands for one entry of a list.
class PopUpSetting : public Setting {
 public:
  PopUpSetting(ControlGroup& group, Key key, const std::vector<std::string>& titles,
               Announcement announcement = {});

  platform::PopUpButton button;

  [[nodiscard]] std::string shownText(std::string_view value) const override;
  [[nodiscard]] std::vector<std::string> shown() const override;

 protected:
  /// The entry that stands for a value; one behind the last where none does.
  [[nodiscard]] virtual std::size_t entryOf(std::string_view value) const = 0;
  void show() override { button.selectItem(entryOf(value())); }
  virtual void chosen(std::size_t index) = 0;
};

/// Asks for a file and puts its path into a setting.
class FileButton {
 public:
  /// `name` is the name of the action.
  FileButton(std::string name, TextFieldSetting& setting, platform::Panels& panels,
             const char* title);

  platform::Button button;

 private:
  void browse();

  TextFieldSetting& setting_;
  platform::Panels& panels_;
  const char* title_;
};

/// The folder of a path, when it exists: where a panel for another such path opens.
std::string folderOf(const std::string& path);

}  // namespace editor
