#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "editor/shapes.h"
#include "platform/translatable.h"

namespace editor {

/// The screen: one value of three parts (type, width, height), each with a control of its own. The
/// parts are edited apart and joined before a save.
class ScreenSetting : public Setting {
 public:
  explicit ScreenSetting(ControlGroup& group);

  platform::PopUpButton screenType;
  platform::ComboBox screenWidth;
  platform::ComboBox screenHeight;

  /// Makes the parts the value of the setting.
  void join();

  [[nodiscard]] std::string valueToSave() const override;
  [[nodiscard]] bool knows(std::string_view value) const override;
  [[nodiscard]] std::vector<std::string> shown() const override;

  enum Part : std::size_t { type, width, height };
  using Parts = std::array<std::string, 3>;

  /// What the window calls the parts, written as the labels of settings are.
  static constexpr std::array<const char*, 3> partLabels = {
      platform::translatable("Settings", "Screen &mode"),
      platform::translatable("Settings", "&Width"), platform::translatable("Settings", "Hei&ght")};

  /// A value as the three controls show it.
  [[nodiscard]] Parts shownParts(std::string_view value) const;
  [[nodiscard]] std::string shownText(std::string_view value) const override;

 protected:
  void fill() override;
  void show() override;

 private:
  [[nodiscard]] Parts partsOf(std::string_view value) const;
  void split() { screensep_ = partsOf(value()); }
  void videoType();
  void winWidth() { editSize(width, screenWidth); }
  void winHeight() { editSize(height, screenHeight); }
  void showSize(Part part, platform::ComboBox& box);
  void editSize(Part part, platform::ComboBox& box);

  Parts screensep_;
};

/// How often the screen is drawn.
class RefreshRateSetting : public PopUpSetting {
 public:
  explicit RefreshRateSetting(ControlGroup& group);

  [[nodiscard]] bool knows(std::string_view value) const override;

 protected:
  [[nodiscard]] std::size_t entryOf(std::string_view value) const override;
  void fill() override;
  void show() override;
  void chosen(std::size_t index) override { refreshRate(index); }

 private:
  void refreshRate(std::size_t index);

  std::vector<std::string> otherValues_;  // of the entries behind the known rates
};

class DisplayGroup : public ControlGroup {
 public:
  using ControlGroup::ControlGroup;

  ScreenSetting screen{*this};
  RefreshRateSetting refreshRate{*this};
};

}  // namespace editor
