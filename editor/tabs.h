#pragma once

#include <memory>

#include "platform/control.h"
#include "platform/tab_view.h"

namespace editor {

/// The tabs of the settings window, of which the SCSI tab comes and goes. What a person set on it
/// stays while it is away, since its content is kept.
class Tabs {
 public:
  Tabs();

  platform::TabView tabViewC{"tabViewC"};
  std::shared_ptr<platform::TabViewItem> scsiTab;
  platform::Button scsiID0{"scsiID0"};

  /// Brings the tab in line with `sharedVar` for the first time.
  void prepareScsiTab();

  /// Brings the tab in line with `sharedVar` again.
  void updateScsiTab();

 private:
  std::shared_ptr<platform::View> scsiView_;
};

}  // namespace editor
