#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace platform {

/// Keeps a callback in use: once this is gone, the callback runs no more. Whether this or the
/// object that calls goes first does not matter.
class [[nodiscard]] Subscription {
 public:
  Subscription() = default;
  Subscription(Subscription&&) noexcept = default;
  Subscription& operator=(Subscription&&) noexcept = default;
  Subscription(const Subscription&) = delete;
  Subscription& operator=(const Subscription&) = delete;
  ~Subscription() = default;

 private:
  friend class Callback;
  explicit Subscription(std::shared_ptr<const std::function<void()>> callback)
      : callback_(std::move(callback)) {}

  std::shared_ptr<const std::function<void()>> callback_;
};

/// The caller's end of a subscription.
class Callback {
 public:
  /// Calls `callback` from now on, in place of any other, for as long as the result lives.
  Subscription subscribe(std::function<void()> callback) {
    auto owned = std::make_shared<const std::function<void()>>(std::move(callback));
    callback_ = owned;
    return Subscription(std::move(owned));
  }

  [[nodiscard]] bool isSubscribed() const { return !callback_.expired(); }

  void operator()() const {
    // The callback may end its own subscription: it is kept until it returns.
    if (const auto callback = callback_.lock()) {
      (*callback)();
    }
  }

 private:
  std::weak_ptr<const std::function<void()>> callback_;
};

}  // namespace platform
