#include "editor/setting.h"

#include <cstdlib>
#include <iostream>
#include <utility>

namespace editor {

Setting::Setting(ControlGroup& group, Key key, Announcement announcement)
    : group_(group), key_(key), announcement_(announcement) {
  group.settings_.push_back(this);
}

void Setting::load() {
  printHeading();
  lookUp();
  printResult();
  fill();
}

void Setting::assign(std::string value) {
  setValue(std::move(value));
  show();
}

void Setting::change(std::string value) {
  assign(std::move(value));
  print(this->value());
}

void Setting::reset() { change(std::string(row().defaultValue)); }

void Setting::printHeading() const {
  const std::string_view text = row().text;
  switch (announcement_.heading) {
    case Announcement::Heading::none:
      break;
    case Announcement::Heading::keyText:
      print(text);
      break;
    case Announcement::Heading::named:
      print(text.substr(0, text.size() - 1), ": ", text);
      break;
    case Announcement::Heading::index:
      print(std::to_string(document::indexOf(key_)));
      break;
  }
}

void Setting::printResult() const {
  const std::string_view label = announcement_.label;
  switch (announcement_.form) {
    case Announcement::Form::none:
      break;
    case Announcement::Form::value:
      print(label, value());
      break;
    case Announcement::Form::optional:
      print(label, platform::optionalText(value()));
      break;
    case Announcement::Form::line:
      print(label, document::Preferences::line(key_, value()));
      break;
    case Announcement::Form::matches:
      print(label, platform::listText(group_.preferences.settings.allContaining(row().text)));
      break;
  }
}

std::array<Setting*, document::keyCount> settingsByKey(
    std::initializer_list<const ControlGroup*> groups) {
  std::array<Setting*, document::keyCount> settings{};
  const auto giveUp = [](const char* problem, Key key) {
    std::cerr << problem << " for the key " << document::rowOf(key).text << std::endl;
    std::abort();
  };
  for (const ControlGroup* const group : groups) {
    for (Setting* const setting : group->settings()) {
      if (std::exchange(settings.at(document::indexOf(setting->key())), setting) != nullptr) {
        giveUp("Two settings", setting->key());
      }
    }
  }
  for (const document::KeyRow& row : document::keyTable) {
    if (settings.at(document::indexOf(row.key)) == nullptr) {
      giveUp("No setting", row.key);
    }
  }
  return settings;
}

}  // namespace editor
