#pragma once

#include <array>
#include <cstddef>
#include <memory>

#include "platform/control.h"
#include "platform/tab_view.h"

namespace editor {

/// The tabs in their order.
enum class TabId : std::size_t { volumes, scsi, machine, display, sound, network, jit, count };

constexpr std::size_t indexOf(TabId id) { return static_cast<std::size_t>(id); }
inline constexpr std::size_t tabCount = indexOf(TabId::count);

/// The tabs of the settings window, of which the SCSI tab comes and goes. What a person set on it
/// stays while it is away, since its content is kept.
class Tabs {
 public:
  Tabs();

  platform::TabView tabViewC{"tabViewC"};
  std::shared_ptr<platform::TabViewItem> scsiTab;
  platform::Button scsiID0{"scsiID0"};

  /// Which tab an item of `tabViewC` is.
  [[nodiscard]] TabId idOf(const platform::TabViewItem& item) const;

  /// Brings the tab in line with `sharedVar` for the first time.
  void prepareScsiTab();

  /// Brings the tab in line with `sharedVar` again.
  void updateScsiTab();

 private:
  std::array<std::shared_ptr<platform::View>, tabCount> views_;  // of all tabs, shown or not
};

}  // namespace editor
