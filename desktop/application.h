#pragma once

#include "desktop/edits.h"
#include "desktop/key_repeat.h"
#include "platform/application.h"

namespace desktop {

/// The running Qt application.
class Application : public platform::Application {
 public:
  void terminate() override;
  void exitNow() override;
  void makeFirstResponder(platform::TextField& field) override;

  Edits edits;

 private:
  KeyRepeat keyRepeat_;
};

}  // namespace desktop
