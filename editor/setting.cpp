#include "editor/setting.h"

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

void Setting::reset() {
  setValue(std::string(row().defaultValue));
  showValue();
  print(value());
}

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

}  // namespace editor
