#include "desktop/pages.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <array>

#include "desktop/page_builder.h"
#include "desktop/texts.h"
#include "desktop/volume_view.h"

namespace desktop {

using editor::TabId;

namespace {

// What only helps to find faults in this program, at the foot.
QLayout* diagnosticsRow(Controls& controls, volumes::VolumeTable& volumes) {
  auto* const row = new QHBoxLayout;
  auto* const label = controls.statusLine(volumes.loCalDebug);
  label->setMinimumHeight(0);
  row->addWidget(label, 1);
  row->addWidget(
      controls.checkBox(volumes.ronMode, tr("Read the local l&ist"),
                        tr("For finding faults in this program: the table shows the second of two "
                           "equal lists. You see no difference.")));
  row->addWidget(
      controls.pushButton(volumes.sheetCreate, tr("Tr&y the save panel…"),
                          tr("For finding faults in this program: shows a panel and writes the "
                             "chosen place to standard output. Nothing is made.")));
  return row;
}

QWidget* volumesPage(const PageContext& context) {
  Controls& controls = context.controls;
  volumes::VolumeTable& volumes = context.controller.volumes;
  editor::SharedFolderGroup& shared = context.controller.sharedFolder;

  auto* const table = new VolumeView(volumes, context.bundle);
  table->setAccessibleName(tr("Disk images"));
  table->setWhatsThis(tr("The disk images of the Macintosh, in their order."));
  table->setAccessibleDescription(table->whatsThis());
  auto* const title = new QLabel(tr("Disk i&mages:"));
  title->setObjectName(QLatin1String("volumesLabel"));
  title->setBuddy(table);
  context.volumesLabel = title;
  title->setAlignment(leadingSide() | Qt::AlignVCenter);

  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(
      controls.pushButton(volumes.browseFile, tr("&Add…"), tr("Adds image files to the list.")));
  buttons->addWidget(
      controls.pushButton(volumes.removeVol, tr("Remo&ve"),
                          tr("Takes the selected image off the list. The file stays.")));
  buttons->addWidget(
      controls.pushButton(context.controller.bitCreate, tr("New &Blank Image…"),
                          tr("Makes an empty disk image. It is not added to the list.")));
  buttons->addStretch();

  auto* const page = new QWidget;
  auto* const layout = new QVBoxLayout(page);
  layout->addWidget(title);
  layout->addWidget(table, 1);
  layout->addLayout(buttons);
  PageBuilder builder(controls, context.settingWidgets);
  builder.field(
      shared.unixRootPath, tr("Shared fol&der:"),
      controls.pushButton(shared.unixRoot, tr("Ch&oose…"), tr("Chooses the shared folder.")));
  layout->addLayout(builder.form());
  layout->addLayout(diagnosticsRow(controls, volumes));
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
  page.field(machine.romFile, tr("&ROM file:"),
             context.controls.pushButton(machine.browseROM.button, tr("Bro&wse…"),
                                         tr("Chooses the ROM file.")));
  page.choice(machine.stateStart, tr("&Boot drive:"));
  page.combo(machine.ramSizeMB, tr("RA&M size (MB):"));
  page.choice(machine.modelID, tr("M&odel:"));
  page.choice(machine.cpuType, tr("Processor (CP&U):"));
  page.check(machine.stateCDROM, tr("&Disable the CD-ROM drive"));
  return page.page();
}

QWidget* displayPage(const PageContext& context) {
  editor::ScreenSetting& screen = context.controller.display.screen;
  const QString help = helpOf(screen);
  PageBuilder page(context.controls, context.settingWidgets);
  page.row(screen, tr("Screen &mode:"), context.controls.popUpButton(screen.screenType, help));
  page.row(screen, tr("&Width:"), context.controls.comboBox(screen.screenWidth, help));
  page.row(screen, tr("Hei&ght:"), context.controls.comboBox(screen.screenHeight, help));
  page.choice(context.controller.display.refreshRate, tr("Refresh r&ate:"));
  return page.page();
}

QWidget* soundPage(const PageContext& context) {
  editor::InputGroup& input = context.controller.input;
  PageBuilder page(context.controls, context.settingWidgets);
  page.heading(tr("Sound"));
  page.check(input.disableSound, tr("&Disable sound"));
  page.field(input.audioOut, tr("&Output device:"));
  page.field(input.audioMix, tr("&Mixer device:"));
  page.heading(tr("Keyboard"));
  page.check(input.rawKeys, tr("Use raw &key codes"));
  page.field(input.rawKeyFile, tr("Ke&y code file:"),
             context.controls.pushButton(input.rawKeyFileSelect.button, tr("&Browse…"),
                                         tr("Chooses the key code file.")));
  page.heading(tr("Mouse"));
  page.choice(input.mouseWheel, tr("Mouse &wheel:"));
  page.steps(input.mouseScroll, tr("L&ines to scroll:"));
  return page.page();
}

QWidget* networkPage(const PageContext& context) {
  editor::NetworkGroup& network = context.controller.network;
  PageBuilder page(context.controls, context.settingWidgets);
  for (QComboBox* const box : {page.combo(network.modemPort, tr("&Modem port:")),
                               page.combo(network.printerPort, tr("P&rinter port:")),
                               page.combo(network.etherPort, tr("Network &device:"))}) {
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  }
  page.check(network.tunnelUDP, tr("Tunnel the net&work over UDP"));
  page.steps(network.portUDP, tr("&UDP port:"));
  return page.page();
}

QWidget* jitPage(const PageContext& context) {
  editor::JitGroup& jit = context.controller.jit;
  PageBuilder page(context.controls, context.settingWidgets);
  page.heading(tr("Just-in-time compiler"));
  page.check(jit.enableJIT, tr("Enable the &JIT compiler"));
  page.check(jit.compileFPU, tr("Compile floating-point instr&uctions"));
  page.combo(jit.jitCache, tr("Cache si&ze (KB):"));
  page.check(jit.lazyFlush, tr("Flush the cache lazil&y"));
  page.check(jit.inlineBlocks, tr("Inline &blocks"));
  page.heading(tr("Processor emulation"));
  page.check(jit.ignoreSegV, tr("Ignore &memory faults"));
  page.check(jit.dontUseCPU, tr("Rest while the Macintosh is &idle"));
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
