#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "editor/shapes.h"

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

  using Parts = std::array<std::string, 3>;

  /// The default as the three controls show it.
  [[nodiscard]] Parts shownDefaultParts() const;

 protected:
  void fill() override;
  void showValue() override;

 private:
  enum Part : std::size_t { type, width, height };

  [[nodiscard]] Parts partsOf(std::string_view value) const;
  void split() { screensep_ = partsOf(value()); }
  void videoType();
  void winWidth() { editSize(width, screenWidth, screenhoriz_); }
  void winHeight() { editSize(height, screenHeight, screenvert_); }

  void showParts();
  void showSize(Part part, platform::ComboBox& box, std::vector<std::string>& sizes);
  void editSize(Part part, platform::ComboBox& box, std::vector<std::string>& sizes);

  Parts screensep_;
  std::vector<std::string> screenhoriz_;
  std::vector<std::string> screenvert_;
};

/// How often the screen is drawn.
class RefreshRateSetting : public PopUpSetting {
 public:
  explicit RefreshRateSetting(ControlGroup& group);

  [[nodiscard]] bool knows(std::string_view value) const override;

 protected:
  [[nodiscard]] std::size_t entryOf(std::string_view value) const override;
  void showValue() override { PopUpSetting::fill(); }
  void fill() override;
  void chosen(std::size_t index) override { refreshRate(index); }

 private:
  void refreshRate(std::size_t index);

  std::string fileValue_;  // behind the last entry, when the file holds none of the known rates
};

class DisplayGroup : public ControlGroup {
 public:
  using ControlGroup::ControlGroup;

  ScreenSetting screen{*this};
  RefreshRateSetting refreshRate{*this};
};

}  // namespace editor
