#include "editor/display.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

#include "platform/text.h"
#include "platform/translatable.h"

namespace editor {
namespace {

// The largest size there is: a word for people, a number in the file.
constexpr std::string_view windowType = "win";
constexpr std::string_view fullScreenType = "dga";
constexpr std::string_view maximumWord = "Maximum";
constexpr std::string_view maximumValue = "0";
constexpr std::size_t maximumIndex = 4;

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
      screenHeight("screenHeight"),
      screenhoriz_{"1024", "800", "640", "512", std::string(maximumWord)},
      screenvert_{"768", "600", "480", "384", std::string(maximumWord)} {
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
  screenWidth.addItems(screenhoriz_);
  screenHeight.addItems(screenvert_);
  showParts();
}

void ScreenSetting::showValue() {
  split();
  showParts();
}

void ScreenSetting::showParts() {
  if (screensep_[type] == windowType) {
    screenType.selectItem(0);
  } else {
    screensep_[type] = fullScreenType;
    screenType.selectItem(1);
  }
  showSize(width, screenWidth, screenhoriz_);
  showSize(height, screenHeight, screenvert_);
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

ScreenSetting::Parts ScreenSetting::shownDefaultParts() const {
  Parts parts = partsOf(row().defaultValue);
  parts[type] = screenType.items().at(parts[type] == windowType ? 0 : 1);
  return parts;
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

void ScreenSetting::showSize(Part part, platform::ComboBox& box, std::vector<std::string>& sizes) {
  const std::string& size = screensep_[part];
  auto found = std::find(sizes.begin(), sizes.end(), size);
  if (found == sizes.end() && size == maximumValue) {
    found = sizes.begin() + maximumIndex;
  } else if (found == sizes.end()) {
    found = sizes.insert(found, size);
    box.addItem(size);
  }
  box.selectItem(static_cast<std::size_t>(found - sizes.begin()));
}

void ScreenSetting::videoType() {
  const std::size_t index = screenType.indexOfSelectedItem().value_or(0);
  print(std::to_string(index));
  screensep_[type] = index == 0 ? windowType : fullScreenType;
  print(screensep_[type]);
}

void ScreenSetting::editSize(Part part, platform::ComboBox& box, std::vector<std::string>& sizes) {
  const auto index = box.indexOfSelectedItem();
  if (!index) {
    screensep_[part] = box.stringValue();
    sizes.push_back(screensep_[part]);
    box.addItem(screensep_[part]);
  } else {
    screensep_[part] = *index == maximumIndex ? std::string(maximumValue) : sizes[*index];
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
  return static_cast<std::size_t>(rate - rates.begin());
}

bool RefreshRateSetting::knows(std::string_view value) const {
  return entryOf(value) < rates.size();
}

void RefreshRateSetting::fill() {
  const auto frameskip = platform::parseInt64(value());
  const std::size_t position = entryOf(value());
  const bool known = position < rates.size();
  if (!known) {
    fileValue_ = value();
    button.addItems({fileValue_ + " (from the file)"});
  }
  print("NEWFRESH!!  ", known ? std::to_string(position) : "nil");
  print("REFRESH!!  ", known ? std::to_string(position) : "nil");
  print("ACTUAL!!!  ", frameskip ? std::to_string(*frameskip) : value());
  button.selectItem(position);
}

void RefreshRateSetting::refreshRate(std::size_t index) {
  print(std::to_string(index));
  setValue(index < rates.size() ? std::to_string(rates[index].frameskip) : fileValue_);
  print(value());
}

}  // namespace editor
