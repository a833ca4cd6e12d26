#include "editor/tabs.h"

#include <algorithm>
#include <array>

#include "app/shared_var.h"
#include "platform/translatable.h"

namespace editor {
namespace {

using app::sharedVar;
using platform::translatable;

constexpr std::size_t allTabs = 7;
constexpr std::size_t allButScsi = 6;
constexpr std::size_t scsiIndex = 1;

struct Tab {
  const char* identifier;
  const char* label;
};

constexpr std::array<Tab, allTabs> tabs = {{{"volumesTab", translatable("Items", "Volumes")},
                                            {"scsiTab", translatable("Items", "SCSI")},
                                            {"machineTab", translatable("Items", "Machine")},
                                            {"displayTab", translatable("Items", "Display")},
                                            {"soundTab", translatable("Items", "Sound & Input")},
                                            {"networkTab", translatable("Items", "Network")},
                                            {"jitTab", translatable("Items", "JIT")}}};

}  // namespace

Tabs::Tabs() {
  for (const Tab& tab : tabs) {
    views_.push_back(std::make_shared<platform::View>(platform::View{tab.identifier}));
    tabViewC.addTabViewItem(std::make_shared<platform::TabViewItem>(
        platform::TabViewItem{tab.identifier, tab.label, views_.back()}));
  }
  scsiTab = tabViewC.items()[scsiIndex];
}

const platform::View* Tabs::view(std::string_view identifier) const {
  const auto found = std::find_if(views_.begin(), views_.end(), [&](const auto& candidate) {
    return candidate->name == identifier;
  });
  return found != views_.end() ? found->get() : nullptr;
}

void Tabs::prepareScsiTab() {
  // A view can change its tab without a copy here: the one that there is stands in for it.
  sharedVar::newScsiTab = views_[scsiIndex];
  updateScsiTab();
  scsiID0.setState(platform::State::off);
}

void Tabs::updateScsiTab() {
  const std::size_t count = tabViewC.numberOfTabViewItems();
  if (count == allTabs && !sharedVar::scsiTabState) {
    tabViewC.removeTabViewItem(scsiTab);
  } else if (count == allButScsi && sharedVar::scsiTabState) {
    scsiTab = std::make_shared<platform::TabViewItem>(platform::TabViewItem{
        tabs[scsiIndex].identifier, tabs[scsiIndex].label, sharedVar::newScsiTab});
    tabViewC.insertTabViewItem(scsiTab, scsiIndex);
  }
}

}  // namespace editor
