#include "platform/control.h"

namespace platform {

void PopUpButton::addItems(const std::vector<std::string>& titles) {
  items_.insert(items_.end(), titles.begin(), titles.end());
  if (!selected_ && !items_.empty()) {
    selected_ = 0;
  }
  changed();
}

void ComboBox::addItem(std::string item) {
  items_.push_back(std::move(item));
  changed();
}

void ComboBox::addItems(const std::vector<std::string>& items) {
  items_.insert(items_.end(), items.begin(), items.end());
  changed();
}

void ComboBox::removeAllItems() {
  items_.clear();
  selected_.reset();
  changed();
}

void ComboBox::selectItem(std::size_t index) {
  selected_ = index;
  setStringValue(items_[index]);
  changed();
}

bool ComboBox::selectItemWithText(std::string_view text) {
  const auto found = std::find(items_.begin(), items_.end(), text);
  if (found == items_.end()) {
    return false;
  }
  selectItem(static_cast<std::size_t>(found - items_.begin()));
  return true;
}

void ComboBox::enterText(std::string text) {
  selected_.reset();
  setStringValue(std::move(text));
  changed();
}

std::int32_t Stepper::valueAfter(int steps) const {
  if (wasOutside_) {
    return value_;
  }
  const auto wanted = std::int64_t{value_} + std::int64_t{steps} * range_.increment;
  return static_cast<std::int32_t>(
      std::clamp<std::int64_t>(wanted, range_.minimum, range_.maximum));
}

}  // namespace platform
