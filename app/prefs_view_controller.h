#pragma once

#include <functional>
#include <memory>

#include "platform/control.h"
#include "platform/host.h"

namespace app {

/// The front-end's preferences: where the emulator is, whether there is a SCSI tab, and whether the
/// front-end ends after Start. Each change is in `sharedVar` at once; Done has the settings window
/// apply and store them.
class prefsViewController {
 public:
  explicit prefsViewController(const platform::Host& host);

  /// Fills the controls.
  void viewWillAppear();

  /// Closes the window.
  std::function<void()> dismiss;

  platform::Button quilOff{"quilOff"};
  platform::Button quilLocal{"quilLocal"};
  platform::Button quilCustom{"quilCustom"};
  platform::Button SCSItab{"SCSItab"};
  platform::Button quitOnStart{"quitOnStart"};
  platform::TextField Quillon{"Quillon"};
  platform::Button chooseQuillon{"chooseQuillon"};
  platform::Button testLaunch{"testLaunch"};
  platform::Button Done{"Done"};

 private:
  void scsiState();
  void GUIstate();
  void turnOn(platform::Button& radioButton);
  void chooseMode();
  void radioButtonChanged();
  void QuilApp();
  void chooseApplication();
  void launchTest();
  void finish();

  platform::Host host_;
  // Panels::beginSheet() may call back after this object is gone, when the window was closed over
  // the open panel. The callback holds a weak pointer to this and does nothing once it has expired.
  std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

}  // namespace app
