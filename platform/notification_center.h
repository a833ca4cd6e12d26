#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace platform {

/// Tells observers by name, at once and in the order in which they came.
class NotificationCenter {
 public:
  void addObserver(std::string name, std::function<void()> observer) {
    observers_.emplace_back(std::move(name), std::move(observer));
  }

  void post(std::string_view name) const {
    for (const auto& [observed, observer] : observers_) {
      if (observed == name) {
        observer();
      }
    }
  }

 private:
  std::vector<std::pair<std::string, std::function<void()>>> observers_;
};

}  // namespace platform
