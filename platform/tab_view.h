#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/control.h"

namespace platform {

/// What fills a tab; the desktop keeps the widgets for it.
struct View {
  std::string name;
};

struct TabViewItem {
  std::string identifier;
  std::string label;
  std::shared_ptr<View> view;
};

class TabView : public Control {
 public:
  using Control::Control;

  [[nodiscard]] std::size_t numberOfTabViewItems() const { return items_.size(); }
  [[nodiscard]] const std::vector<std::shared_ptr<TabViewItem>>& items() const { return items_; }

  void addTabViewItem(std::shared_ptr<TabViewItem> item) {
    insertTabViewItem(std::move(item), items_.size());
  }
  void insertTabViewItem(std::shared_ptr<TabViewItem> item, std::size_t index) {
    items_.insert(items_.begin() + static_cast<std::ptrdiff_t>(index), std::move(item));
    changed();
  }
  void removeTabViewItem(const std::shared_ptr<TabViewItem>& item) {
    if (std::erase(items_, item) != 0) {
      changed();
    }
  }

 private:
  std::vector<std::shared_ptr<TabViewItem>> items_;
};

}  // namespace platform
