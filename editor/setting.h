#pragma once

#include <array>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "document/key_table.h"
#include "document/preferences.h"
#include "platform/control.h"
#include "platform/output.h"
#include "platform/panels.h"

namespace editor {

using document::Key;

class Setting;

/// What the control groups work with, and the settings they consist of.
class ControlGroup {
 public:
  ControlGroup(document::Preferences& values, platform::Output& diagnostics,
               platform::Panels& choosers)
      : preferences(values), output(diagnostics), panels(choosers) {}
  ControlGroup(const ControlGroup&) = delete;
  ControlGroup& operator=(const ControlGroup&) = delete;

  /// The settings of the group, each of which adds itself.
  [[nodiscard]] const std::vector<Setting*>& settings() const { return settings_; }

  document::Preferences& preferences;
  platform::Output& output;
  platform::Panels& panels;

 protected:
  ~ControlGroup() = default;

 private:
  friend class Setting;
  std::vector<Setting*> settings_;
};

/// How one key is announced in the diagnostics while the window is filled.
struct Announcement {
  enum class Heading {
    none,
    keyText,  // "dsp "
    named,    // "ramsize: ramsize "
    index,    // "29"
  };
  enum class Form {
    none,
    value,     // "label" and the value
    optional,  // "label" and Optional("the value")
    line,      // "label" and the composed line
    matches,   // "label" and the list of lines that contain the key text
  };

  Heading heading = Heading::none;       // before the lookup
  std::string_view found = "results: ";  // the lookup's own label
  Form form = Form::none;                // after the lookup
  std::string_view label{};              // after the lookup
};

/// One key in the window: its value and what shows it. This class itself is for a key without a
/// control.
class Setting {
 public:
  Setting(ControlGroup& group, Key key, Announcement announcement = {});
  Setting(const Setting&) = delete;
  Setting& operator=(const Setting&) = delete;
  virtual ~Setting() = default;

  [[nodiscard]] Key key() const { return key_; }

  /// Looks the key up and shows its value.
  void load();

  /// Makes a text the value and shows it as a window over a file with that value would. This is the
  /// way to change a setting without its control.
  void assign(std::string value);

  /// Assigns a value on a person's behalf, and tells the diagnostics.
  void change(std::string value);

  /// Changes the value to the default.
  virtual void reset();

  /// The key whose row explains the control, where it shows more than one.
  [[nodiscard]] virtual Key explainedKey() const { return key_; }

  /// The setting that must be on for the control to be enabled, if any.
  [[nodiscard]] const Setting* enabledBy() const { return enabledBy_; }
  void setEnabledBy(const Setting& setting) { enabledBy_ = &setting; }

  /// What the window calls the setting, as it stands in the table.
  [[nodiscard]] const char* label() const { return document::rowOf(explainedKey()).label; }

  /// A value as its control shows it to a person.
  [[nodiscard]] virtual std::string shownText(std::string_view value) const {
    return std::string(value);
  }
  [[nodiscard]] std::string shownValue() const { return shownText(valueToSave()); }
  [[nodiscard]] virtual std::string shownDefault() const { return shownText(row().defaultValue); }

  /// Whether the control has a way to show a value.
  [[nodiscard]] virtual bool knows(std::string_view /*value*/) const { return true; }

  /// What the control shows now, in one or more parts.
  [[nodiscard]] virtual std::vector<std::string> shown() const { return {value()}; }

  /// Whether all that the control shows is as it is by default.
  [[nodiscard]] virtual bool isDefault() const { return valueToSave() == row().defaultValue; }

  /// The value that a save would write now.
  [[nodiscard]] virtual std::string valueToSave() const { return value(); }

  /// The lines that a save would write for what the control shows, one for each of its keys.
  [[nodiscard]] virtual std::vector<std::string> linesToSave() const {
    return {document::Preferences::line(key_, valueToSave())};
  }

 protected:
  virtual void lookUp() { group_.preferences.lookUp(key_, announcement_.found); }

  /// Shows the value that has been looked up, with the diagnostics that go with that.
  virtual void fill() { show(); }

  /// Brings the controls in line with the value, whatever it is and whatever they showed before.
  virtual void show() {}

  [[nodiscard]] const document::KeyRow& row() const { return document::rowOf(key_); }
  [[nodiscard]] const std::string& value() const { return group_.preferences.value(key_); }
  void setValue(std::string value) { group_.preferences.setValue(key_, std::move(value)); }
  [[nodiscard]] ControlGroup& group() const { return group_; }

  template <typename... Parts>
  void print(const Parts&... parts) const {
    group_.output.print(parts...);
  }

 private:
  void printHeading() const;
  void printResult() const;

  ControlGroup& group_;
  Key key_;
  Announcement announcement_;
  const Setting* enabledBy_ = nullptr;
};

/// The settings of all groups by index. Ends the program, with a word to the developer, when a key
/// has no setting or two.
std::array<Setting*, document::keyCount> settingsByKey(
    std::initializer_list<const ControlGroup*> groups);

/// The name that code, tests and tools know the key's control by.
inline std::string outletOf(Key key) { return std::string(document::rowOf(key).control); }

}  // namespace editor
