#include "desktop/pages.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <array>

#include "desktop/page_builder.h"
#include "desktop/texts.h"
#include "desktop/volumes_list.h"

namespace desktop {

using editor::TabId;

namespace {

QWidget* volumesPage(const PageContext& context) {
  Controls& controls = context.controls;
  editor::SharedFolderGroup& shared = context.controller.sharedFolder;

  auto* const page = new QWidget;
  auto* const layout = new QVBoxLayout(page);
  layout->addLayout(new VolumesList(context), 1);
  layout->addSpacing(page->fontMetrics().lineSpacing() / 2);
  PageBuilder builder(controls, context.settingWidgets);
  builder.field(shared.unixRootPath,
                controls.pushButton(shared.unixRoot, tr("Ch&oose…"),
                                    tr("Chooses the shared folder."), "folder-open"));
  layout->addWidget(builder.sections());
  return page;
}

QWidget* scsiPage(const PageContext& context) {
  auto* const page = new QWidget;
  auto* const layout = new QVBoxLayout(page);
  layout->addWidget(context.controls.checkBox(
      context.controller.tabs.scsiID0, tr("SCSI &ID 0"),
      tr("A mark for yourself while the window is open. It is not saved.")));
  layout->addStretch();
  return page;
}

QWidget* machinePage(const PageContext& context) {
  editor::MachineGroup& machine = context.controller.machine;
  PageBuilder page(context.controls, context.settingWidgets);
  page.section(tr("Starting"));
  page.field(machine.romFile,
             context.controls.pushButton(machine.browseROM.button, tr("Bro&wse…"),
                                         tr("Chooses the ROM file."), "document-open"));
  page.choice(machine.stateStart);
  page.section(tr("Hardware"));
  page.combo(machine.ramSizeMB);
  page.choice(machine.modelID);
  page.choice(machine.cpuType);
  page.check(machine.stateCDROM);
  return page.page();
}

QWidget* displayPage(const PageContext& context) {
  editor::DisplayGroup& display = context.controller.display;
  PageBuilder page(context.controls, context.settingWidgets);
  page.section(tr("Screen"));
  page.screen(display.screen);
  page.section(tr("Drawing"));
  page.choice(display.refreshRate);
  return page.page();
}

QWidget* soundPage(const PageContext& context) {
  editor::InputGroup& input = context.controller.input;
  PageBuilder page(context.controls, context.settingWidgets);
  page.section(tr("Sound"));
  page.check(input.disableSound);
  page.field(input.audioOut);
  page.field(input.audioMix);
  page.section(tr("Keyboard"));
  page.check(input.rawKeys);
  page.field(input.rawKeyFile,
             context.controls.pushButton(input.rawKeyFileSelect.button, tr("&Browse…"),
                                         tr("Chooses the key code file."), "document-open"));
  page.section(tr("Mouse"));
  page.choice(input.mouseWheel);
  page.steps(input.mouseScroll);
  return page.page();
}

// For names of devices and programs.
void widen(QComboBox* box) { box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed); }

QWidget* networkPage(const PageContext& context) {
  editor::NetworkGroup& network = context.controller.network;
  PageBuilder page(context.controls, context.settingWidgets);
  page.section(tr("Serial ports"));
  widen(page.combo(network.modemPort));
  widen(page.combo(network.printerPort));
  page.section(tr("Network"));
  widen(page.combo(network.etherPort));
  page.check(network.tunnelUDP);
  page.steps(network.portUDP);
  return page.page();
}

QWidget* jitPage(const PageContext& context) {
  editor::JitGroup& jit = context.controller.jit;
  PageBuilder page(context.controls, context.settingWidgets);
  page.section(tr("Just-in-time compiler"));
  page.check(jit.enableJIT);
  page.check(jit.compileFPU);
  page.combo(jit.jitCache);
  page.check(jit.lazyFlush);
  page.check(jit.inlineBlocks);
  page.section(tr("Processor emulation"));
  page.check(jit.ignoreSegV);
  page.check(jit.dontUseCPU);
  return page.page();
}

struct PageRow {
  TabId id;
  QWidget* (*make)(const PageContext& context);
};

constexpr std::array<PageRow, editor::tabCount> pageTable = {{{TabId::volumes, volumesPage},
                                                              {TabId::scsi, scsiPage},
                                                              {TabId::machine, machinePage},
                                                              {TabId::display, displayPage},
                                                              {TabId::sound, soundPage},
                                                              {TabId::network, networkPage},
                                                              {TabId::jit, jitPage}}};

constexpr bool hasRowsInOrder() {
  for (std::size_t index = 0; index < pageTable.size(); ++index) {
    if (indexOf(pageTable[index].id) != index || pageTable[index].make == nullptr) {
      return false;
    }
  }
  return true;
}
static_assert(hasRowsInOrder(), "a page for each tab, in their order");

}  // namespace

QWidget* makePage(TabId id, const PageContext& context) {
  return pageTable.at(indexOf(id)).make(context);
}

}  // namespace desktop
