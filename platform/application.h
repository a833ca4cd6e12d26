#pragma once

#include <functional>

#include "platform/control.h"

namespace platform {

/// The running application, as far as controllers ask something of it.
class Application {
 public:
  Application() = default;
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;
  virtual ~Application() = default;

  /// Ends the application in the ordinary way.
  virtual void terminate() = 0;

  /// Ends the process at once with status 0; no hook runs.
  virtual void exitNow() = 0;

  /// Ends the edit that is under way in any field, which runs that field's action, and gives the
  /// keyboard focus to `field`.
  virtual void makeFirstResponder(TextField& field) = 0;
};

/// A window as its delegate sees it.
struct Window {
  std::function<void()> willClose;
};

}  // namespace platform
