#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/subscription.h"

namespace platform {

/// Tells observers by name, at once and in the order in which they came.
class NotificationCenter {
 public:
  /// `observer` is told for as long as the result lives.
  Subscription addObserver(std::string name, std::function<void()> observer) {
    std::erase_if(observers_, [](const auto& known) { return !known.second.isSubscribed(); });
    return observers_.emplace_back(std::move(name), Callback())
        .second.subscribe(std::move(observer));
  }

  void post(std::string_view name) const {
    // An observer may add others: those are told from the next post on.
    const auto observers = observers_;
    for (const auto& [observed, observer] : observers) {
      if (observed == name) {
        observer();
      }
    }
  }

 private:
  std::vector<std::pair<std::string, Callback>> observers_;
};

}  // namespace platform
