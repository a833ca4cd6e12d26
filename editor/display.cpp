#include "editor/display.h"

#include <algorithm>
#include <cstdint>

#include "platform/text.h"

namespace editor {
namespace {

constexpr std::string_view windowType = "win";
constexpr std::string_view fullScreenType = "dga";
// The largest size there is: "Maximum" in the lists, "0" in the file.
constexpr std::string_view maximumWord = "Maximum";
constexpr std::string_view maximumValue = "0";
constexpr std::size_t maximumIndex = 4;

constexpr std::size_t entryOfType(std::string_view type) { return type == windowType ? 0 : 1; }

struct Rate {
  std::string_view title;
  std::int64_t frameskip;
};

constexpr std::array<Rate, 7> rates = {{{platform::translatable("Items", "Dynamic"), 0},
                                        {"60 Hz", 1},
                                        {"30 Hz", 2},
                                        {"15 Hz", 4},
                                        {"10 Hz", 6},
                                        {platform::translatable("Items", "7.5 Hz"), 8},
                                        {"5 Hz", 12}}};

std::vector<std::string> rateTitles() {
  std::vector<std::string> titles;
  titles.reserve(rates.size());
  for (const Rate& rate : rates) {
    titles.emplace_back(rate.title);
  }
  return titles;
}

}  // namespace

ScreenSetting::ScreenSetting(ControlGroup& group)
    : Setting(group, Key::screen,
              {.heading = Announcement::Heading::keyText, .form = Announcement::Form::matches}),
      screenType(outletOf(Key::screen)),
      screenWidth("screenWidth"),
      screenHeight("screenHeight") {
  screenWidth.addItems({"1024", "800", "640", "512", std::string(maximumWord)});
  screenHeight.addItems({"768", "600", "480", "384", std::string(maximumWord)});
  screenType.addItems(
      {platform::translatable("Items", "Window"), platform::translatable("Items", "Full screen")});
  screenType.action = [this] { videoType(); };
  screenWidth.action = [this] { winWidth(); };
  screenHeight.action = [this] { winHeight(); };
}

void ScreenSetting::fill() {
  split();
  for (const std::string& part : screensep_) {
    print("Screen: ", part);
  }
  show();
}

void ScreenSetting::show() {
  split();
  if (screensep_[type] != windowType) {
    screensep_[type] = fullScreenType;
  }
  screenType.selectItem(entryOfType(screensep_[type]));
  showSize(width, screenWidth);
  showSize(height, screenHeight);
}

// Parts that the value lacks come from the default; more than three are dropped.
ScreenSetting::Parts ScreenSetting::partsOf(std::string_view value) const {
  Parts parts;
  for (std::string_view rest : {row().defaultValue, value}) {
    for (std::string& part : parts) {
      const std::size_t end = rest.find('/');
      part = rest.substr(0, end);
      if (end == rest.npos) {
        break;
      }
      rest.remove_prefix(end + 1);
    }
  }
  return parts;
}

ScreenSetting::Parts ScreenSetting::shownParts(std::string_view value) const {
  Parts parts = partsOf(value);
  parts[type] = screenType.items().at(entryOfType(parts[type]));
  for (const Part size : {width, height}) {
    if (parts[size] == maximumValue) {
      parts[size] = maximumWord;
    }
  }
  return parts;
}

std::string ScreenSetting::shownText(std::string_view value) const {
  const Parts parts = shownParts(value);
  return parts[type] + ", " + parts[width] + " \u00d7 " + parts[height];
}

bool ScreenSetting::knows(std::string_view value) const {
  const Parts parts = partsOf(value);
  const auto isSize = [](const std::string& size) {
    const auto pixels = platform::parseInt32(size);
    return pixels && *pixels >= 0;
  };
  return std::count(value.begin(), value.end(), '/') == 2 &&
         (parts[type] == windowType || parts[type] == fullScreenType) && isSize(parts[width]) &&
         isSize(parts[height]);
}

std::vector<std::string> ScreenSetting::shown() const {
  return {screenType.items().at(screenType.indexOfSelectedItem().value_or(0)),
          screenWidth.stringValue(), screenHeight.stringValue()};
}

void ScreenSetting::showSize(Part part, platform::ComboBox& box) {
  const std::string& size = screensep_[part];
  if (size != maximumValue) {
    selectOrAdd(box, size);
  } else if (!box.selectItemWithText(size)) {
    box.selectItem(maximumIndex);
  }
}

void ScreenSetting::videoType() {
  const std::size_t index = screenType.indexOfSelectedItem().value_or(0);
  print(std::to_string(index));
  screensep_[type] = index == 0 ? windowType : fullScreenType;
  print(screensep_[type]);
}

void ScreenSetting::editSize(Part part, platform::ComboBox& box) {
  const auto index = box.indexOfSelectedItem();
  if (!index) {
    screensep_[part] = box.stringValue();
    box.addItem(screensep_[part]);
  } else {
    screensep_[part] = *index == maximumIndex ? std::string(maximumValue) : box.items()[*index];
  }
  print(screensep_[part]);
}

std::string ScreenSetting::valueToSave() const {
  std::string joined;
  for (const std::string& part : screensep_) {
    joined += &part == screensep_.data() ? "" : "/";
    joined += part == maximumWord ? std::string(maximumValue) : part;
  }
  return joined;
}

void ScreenSetting::join() {
  for (std::string& part : screensep_) {
    print(part);
    if (part == maximumWord) {
      part = maximumValue;
      print(part);
    }
  }
  setValue(valueToSave());
}

RefreshRateSetting::RefreshRateSetting(ControlGroup& group)
    : PopUpSetting(group, Key::frameskip, rateTitles(),
                   {.heading = Announcement::Heading::keyText}) {}

std::size_t RefreshRateSetting::entryOf(std::string_view value) const {
  const auto frameskip = platform::parseInt64(value);
  const auto* const rate = std::find_if(
      rates.begin(), rates.end(), [&](const Rate& known) { return known.frameskip == frameskip; });
  if (rate != rates.end()) {
    return static_cast<std::size_t>(rate - rates.begin());
  }
  const auto other = std::find(otherValues_.begin(), otherValues_.end(), value);
  return rates.size() + static_cast<std::size_t>(other - otherValues_.begin());
}

bool RefreshRateSetting::knows(std::string_view value) const {
  return entryOf(value) < rates.size();
}

void RefreshRateSetting::fill() {
  const auto frameskip = platform::parseInt64(value());
  const std::size_t position = entryOf(value());
  const std::string positionText = position < rates.size() ? std::to_string(position) : "nil";
  print("NEWFRESH!!  ", positionText);
  print("REFRESH!!  ", positionText);
  print("ACTUAL!!!  ", frameskip ? std::to_string(*frameskip) : value());
  show();
}

void RefreshRateSetting::show() {
  if (entryOf(value()) == button.items().size()) {
    otherValues_.push_back(value());
    button.addItems({value() + std::string(fromFile)});
  }
  PopUpSetting::show();
}

void RefreshRateSetting::refreshRate(std::size_t index) {
  print(std::to_string(index));
  setValue(index < rates.size() ? std::to_string(rates[index].frameskip)
                                : otherValues_.at(index - rates.size()));
  print(value());
}

}  // namespace editor
