#pragma once

#include <memory>
#include <string_view>
#include <vector>

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

  /// The content of a tab, which stays the same when the tab goes and comes back.
  [[nodiscard]] const platform::View* view(std::string_view identifier) const;

  /// Brings the tab in line with `sharedVar` for the first time.
  void prepareScsiTab();

  /// Brings the tab in line with `sharedVar` again.
  void updateScsiTab();

 private:
  std::vector<std::shared_ptr<platform::View>> views_;  // of all tabs, shown or not
};

}  // namespace editor
