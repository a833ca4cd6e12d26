#include "desktop/pages.h"

#include <QCoreApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "desktop/volume_view.h"

namespace desktop {
namespace {

using document::Key;

QString tr(const char* text) { return QCoreApplication::translate("Pages", text); }

QWidget* field(Controls& controls, editor::TextFieldSetting& setting) {
  return controls.lineEdit(setting.field, helpOf(setting.key()));
}

QWidget* choice(Controls& controls, editor::PopUpSetting& setting) {
  return controls.popUpButton(setting.button, helpOf(setting.key()));
}

QWidget* combo(Controls& controls, editor::ComboBoxSetting& setting) {
  return controls.comboBox(setting.box, helpOf(setting.key()));
}

QWidget* check(Controls& controls, editor::CheckBoxSetting& setting, const QString& text) {
  return controls.checkBox(setting.box, text, helpOf(setting.key()));
}

QWidget* steps(Controls& controls, editor::StepperSetting& setting) {
  return controls.stepper(setting.stepper, setting.field, helpOf(setting.key()));
}

// A label and its widget. Keyboards reach the widget through the label's letter, screen readers
// name it by the label.
void addRow(QFormLayout* form, const QString& label, QWidget* widget) {
  form->addRow(label, widget);
  widget->setAccessibleName(QString(label).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
}

// The same with a button behind the widget.
void addRow(QFormLayout* form, const QString& label, QWidget* widget, QWidget* button) {
  auto* const line = new QHBoxLayout;
  line->addWidget(widget, 1);
  line->addWidget(button);
  addRow(form, label, widget);
  const int row = form->rowCount() - 1;
  form->takeAt(form->count() - 1);
  form->setLayout(row, QFormLayout::FieldRole, line);
}

struct Page {
  QWidget* widget = new QWidget;
  QFormLayout* form = new QFormLayout(widget);

  Page() { form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow); }
};

void addHeading(QFormLayout* form, const QString& text) {
  auto* const heading = new QLabel(text);
  QFont font = heading->font();
  font.setBold(true);
  heading->setFont(font);
  form->addRow(heading);
}

// What only helps to find faults in this program: small and at the foot.
QLayout* diagnosticsRow(Controls& controls, volumes::VolumeTable& volumes) {
  auto* const row = new QHBoxLayout;
  auto* const label = controls.statusLine(volumes.loCalDebug);
  label->setMinimumHeight(0);
  QWidget* const widgets[] = {
      label,
      controls.checkBox(volumes.ronMode, tr("Read the local l&ist"),
                        tr("For finding faults in this program: the table shows the second of two "
                           "equal lists. You see no difference.")),
      controls.pushButton(volumes.sheetCreate, tr("Tr&y the save panel…"),
                          tr("For finding faults in this program: shows a panel and writes the "
                             "chosen place to standard output. Nothing is made."))};
  for (QWidget* const widget : widgets) {
    QFont small = widget->font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    widget->setFont(small);
    row->addWidget(widget, widget == label ? 1 : 0);
  }
  return row;
}

}  // namespace

QWidget* volumesPage(Controls& controls, editor::ViewController& controller,
                     const QString& images) {
  volumes::VolumeTable& volumes = controller.volumes;
  editor::SharedFolderGroup& shared = controller.sharedFolder;

  auto* const table = new VolumeView(volumes, images);
  table->setAccessibleName(tr("Disk images"));
  table->setAccessibleDescription(tr("The disk images of the Macintosh, in their order."));
  auto* const title = new QLabel(tr("Disk i&mages:"));
  title->setBuddy(table);

  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(
      controls.pushButton(volumes.browseFile, tr("&Add…"), tr("Adds image files to the list.")));
  buttons->addWidget(
      controls.pushButton(volumes.removeVol, tr("Remo&ve"),
                          tr("Takes the selected image off the list. The file stays.")));
  buttons->addWidget(
      controls.pushButton(controller.bitCreate, tr("New &Blank Image…"),
                          tr("Makes an empty disk image. It is not added to the list.")));
  buttons->addStretch();

  auto* const form = new QFormLayout;
  addRow(form, tr("Shared fol&der:"), field(controls, shared.unixRootPath),
         controls.pushButton(shared.unixRoot, tr("Ch&oose…"), tr("Chooses the shared folder.")));

  auto* const page = new QWidget;
  auto* const layout = new QVBoxLayout(page);
  layout->addWidget(title);
  layout->addWidget(table, 1);
  layout->addLayout(buttons);
  layout->addLayout(form);
  layout->addLayout(diagnosticsRow(controls, volumes));
  return page;
}

QWidget* scsiPage(Controls& controls, editor::ViewController& controller) {
  const Page page;
  page.form->addRow(
      controls.checkBox(controller.tabs.scsiID0, tr("SCSI &ID 0"),
                        tr("A mark for yourself while the window is open. It is not saved.")));
  return page.widget;
}

QWidget* machinePage(Controls& controls, editor::ViewController& controller) {
  editor::MachineGroup& machine = controller.machine;
  const Page page;
  addRow(
      page.form, tr("&ROM file:"), field(controls, machine.romFile),
      controls.pushButton(machine.browseROM.button, tr("Bro&wse…"), tr("Chooses the ROM file.")));
  addRow(page.form, tr("&Boot drive:"), choice(controls, machine.stateStart));
  addRow(page.form, tr("RA&M size (MB):"), combo(controls, machine.ramSizeMB));
  addRow(page.form, tr("M&odel:"), choice(controls, machine.modelID));
  addRow(page.form, tr("Processor (CP&U):"), choice(controls, machine.cpuType));
  page.form->addRow(QString(),
                    check(controls, machine.stateCDROM, tr("&Disable the CD-ROM drive")));
  return page.widget;
}

QWidget* displayPage(Controls& controls, editor::ViewController& controller) {
  editor::ScreenSetting& screen = controller.display.screen;
  const QString help = helpOf(Key::screen);
  const Page page;
  addRow(page.form, tr("Screen &mode:"), controls.popUpButton(screen.screenType, help));
  addRow(page.form, tr("&Width:"), controls.comboBox(screen.screenWidth, help));
  addRow(page.form, tr("Hei&ght:"), controls.comboBox(screen.screenHeight, help));
  addRow(page.form, tr("Refresh r&ate:"), choice(controls, controller.display.refreshRate));
  return page.widget;
}

QWidget* soundPage(Controls& controls, editor::ViewController& controller) {
  editor::InputGroup& input = controller.input;
  const Page page;
  addHeading(page.form, tr("Sound"));
  page.form->addRow(QString(), check(controls, input.disableSound, tr("&Disable sound")));
  addRow(page.form, tr("&Output device:"), field(controls, input.audioOut));
  addRow(page.form, tr("&Mixer device:"), field(controls, input.audioMix));
  addHeading(page.form, tr("Keyboard"));
  page.form->addRow(QString(), check(controls, input.rawKeys, tr("Use raw &key codes")));
  addRow(page.form, tr("Ke&y code file:"), field(controls, input.rawKeyFile),
         controls.pushButton(input.rawKeyFileSelect.button, tr("&Browse…"),
                             tr("Chooses the key code file.")));
  addHeading(page.form, tr("Mouse"));
  addRow(page.form, tr("Mouse &wheel:"), choice(controls, input.mouseWheel));
  addRow(page.form, tr("L&ines to scroll:"), steps(controls, input.mouseScroll));
  return page.widget;
}

QWidget* networkPage(Controls& controls, editor::ViewController& controller) {
  editor::NetworkGroup& network = controller.network;
  const Page page;
  const auto wide = [&](editor::ComboBoxSetting& setting) {
    QComboBox* const box = controls.comboBox(setting.box, helpOf(setting.key()));
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return box;
  };
  addRow(page.form, tr("&Modem port:"), wide(network.modemPort));
  addRow(page.form, tr("P&rinter port:"), wide(network.printerPort));
  addRow(page.form, tr("Network &device:"), wide(network.etherPort));
  page.form->addRow(QString(),
                    check(controls, network.tunnelUDP, tr("Tunnel the net&work over UDP")));
  addRow(page.form, tr("&UDP port:"), steps(controls, network.portUDP));
  return page.widget;
}

QWidget* jitPage(Controls& controls, editor::ViewController& controller) {
  editor::JitGroup& jit = controller.jit;
  const Page page;
  addHeading(page.form, tr("Just-in-time compiler"));
  page.form->addRow(QString(), check(controls, jit.enableJIT, tr("Enable the &JIT compiler")));
  page.form->addRow(QString(),
                    check(controls, jit.compileFPU, tr("Compile floating-point instr&uctions")));
  addRow(page.form, tr("Cache si&ze (KB):"), combo(controls, jit.jitCache));
  page.form->addRow(QString(),
                    check(controls, jit.lazyFlush, tr("Flush the cache la&gging behind")));
  page.form->addRow(QString(), check(controls, jit.inlineBlocks, tr("Inline &blocks")));
  addHeading(page.form, tr("Processor emulation"));
  page.form->addRow(QString(), check(controls, jit.ignoreSegV, tr("Ignore &memory faults")));
  page.form->addRow(QString(),
                    check(controls, jit.dontUseCPU, tr("Rest while the Macintosh is &idle")));
  return page.widget;
}

}  // namespace desktop
