#include "editor/tabs.h"

#include <algorithm>
#include <utility>

#include "app/shared_var.h"
#include "platform/translatable.h"

namespace editor {
namespace {

using app::sharedVar;
using platform::translatable;

constexpr std::size_t scsiIndex = indexOf(TabId::scsi);

struct TabRow {
  TabId id;
  const char* identifier;
  const char* label;
};

constexpr std::array<TabRow, tabCount> tabTable = {
    {{TabId::volumes, "volumesTab", translatable("Items", "Volumes")},
     {TabId::scsi, "scsiTab", translatable("Items", "SCSI")},
     {TabId::machine, "machineTab", translatable("Items", "Machine")},
     {TabId::display, "displayTab", translatable("Items", "Display")},
     {TabId::sound, "soundTab", translatable("Items", "Sound & Input")},
     {TabId::network, "networkTab", translatable("Items", "Network")},
     {TabId::jit, "jitTab", translatable("Items", "JIT")}}};

constexpr bool hasRowsInOrder() {
  for (std::size_t index = 0; index < tabCount; ++index) {
    if (indexOf(tabTable[index].id) != index || tabTable[index].label == nullptr) {
      return false;
    }
  }
  return true;
}
static_assert(hasRowsInOrder(), "a row for each tab, in their order");

std::shared_ptr<platform::TabViewItem> makeItem(TabId id, std::shared_ptr<platform::View> view) {
  const TabRow& row = tabTable[indexOf(id)];
  return std::make_shared<platform::TabViewItem>(
      platform::TabViewItem{row.identifier, row.label, std::move(view)});
}

}  // namespace

Tabs::Tabs() {
  for (const TabRow& row : tabTable) {
    auto& view = views_[indexOf(row.id)];
    view = std::make_shared<platform::View>(platform::View{row.identifier});
    tabViewC.addTabViewItem(makeItem(row.id, view));
  }
  scsiTab = tabViewC.items()[scsiIndex];
}

TabId Tabs::idOf(const platform::TabViewItem& item) const {
  const auto* const found = std::find(views_.begin(), views_.end(), item.view);
  return static_cast<TabId>(found - views_.begin());
}

void Tabs::prepareScsiTab() {
  // Kept for updateScsiTab(), which makes a new item with this view each time the tab comes back.
  sharedVar::newScsiTab = views_[scsiIndex];
  updateScsiTab();
  scsiID0.setState(platform::State::off);
}

void Tabs::updateScsiTab() {
  const std::size_t count = tabViewC.numberOfTabViewItems();
  if (count == tabCount && !sharedVar::scsiTabState) {
    tabViewC.removeTabViewItem(scsiTab);
  } else if (count == tabCount - 1 && sharedVar::scsiTabState) {
    scsiTab = makeItem(TabId::scsi, sharedVar::newScsiTab);
    tabViewC.insertTabViewItem(scsiTab, scsiIndex);
  }
}

}  // namespace editor
