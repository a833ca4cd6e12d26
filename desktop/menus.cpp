#include "desktop/menus.h"

#include <QPainter>

#include "desktop/icons.h"
#include "desktop/texts.h"

namespace desktop {

Menus::Menus(editor::ViewController& controller, Controls& controls, const Openers& openers)
    : controls_(controls) {
  addFile(controller, openers);
  QMenu* const edit = addMenu(tr("&Edit"));
  add(edit,
      {.text = tr("&Find a Setting…"),
       .icon = "edit-find",
       .keys = QKeySequence(Qt::CTRL | Qt::Key_F)},
      openers.find)
      ->setObjectName(QLatin1String("findAction"));
  add(edit, {.text = tr("&Reset This Page"), .icon = "edit-undo"}, openers.resetPage)
      ->setObjectName(QLatin1String("resetPage"));
  edit->addSeparator();
  add(edit,
      {.text = tr("&Preferences…"),
       .icon = "preferences-system",
       .keys = QKeySequence(Qt::CTRL | Qt::Key_Comma)},
      openers.preferences);
  addPresets(controller.presets);
  QMenu* const help = addMenu(tr("&Help"));
  add(help, {.text = tr("&Beta Agreement…")}, openers.agreement);
  add(help, {.text = tr("&Diagnostics…")}, openers.diagnostics)
      ->setObjectName(QLatin1String("openDiagnostics"));
  add(help, {.text = tr("&About Quillon Settings"), .icon = "help-about"}, openers.about);
}

QAction* Menus::add(QMenu* menu, const Face& face, const Callback& callback) {
  auto* const entry = new QAction(face.text, menu);
  entry->setShortcut(face.keys);
  if (face.icon != nullptr) {
    giveIcon(entry, menu, face.icon);
  }
  connect(entry, &QAction::triggered, this, callback);
  menu->addAction(entry);
  return entry;
}

QAction* Menus::addButton(QMenu* menu, platform::Button& button, const Face& face) {
  return add(menu, face, [this, &button] {
    controls_.edits().endEditing();
    button.sendAction();
  });
}

void Menus::addFile(editor::ViewController& controller, const Openers& openers) {
  const auto withCtrl = [](Qt::Key key) { return QKeySequence(Qt::CTRL | key); };
  QMenu* const file = addMenu(tr("&File"));
  addButton(file, controller.savePrefs,
            {.text = tr("&Save"), .icon = "document-save", .keys = withCtrl(Qt::Key_S)});
  add(file, {.text = tr("Pre&view…"), .icon = "document-print-preview"}, openers.preview)
      ->setObjectName(QLatin1String("previewFile"));
  start_ = addButton(
      file, controller.startQuil,
      {.text = tr("S&tart"), .icon = "media-playback-start", .keys = withCtrl(Qt::Key_Return)});
  file->addSeparator();
  addButton(file, controller.bitCreate,
            {.text = tr("&New Blank Image…"), .icon = "document-new", .keys = withCtrl(Qt::Key_N)});
  addButton(file, controller.volumes.browseFile,
            {.text = tr("&Add Disk Image…"), .icon = "list-add", .keys = withCtrl(Qt::Key_O)});
  file->addSeparator();
  addButton(file, controller.isQuit,
            {.text = tr("&Quit"), .icon = "application-exit", .keys = withCtrl(Qt::Key_Q)});
}

void Menus::addPresets(editor::Presets& presets) {
  QMenu* const menu = addMenu(tr("&Presets"));
  menu->setObjectName(QLatin1String("presetsMenu"));
  menu->setToolTipsVisible(true);
  for (platform::Button& item : presets.presetsMenu) {
    QAction* const entry = controls_.menuEntry(item, toQString(item.title()), menu);
    entry->setToolTip(tr(
        "A mark for yourself while the window is open. It changes no setting and is not saved."));
    menu->addAction(entry);
  }
}

// Without the line at its foot, which would end where the search field begins.
void Menus::paintEvent(QPaintEvent* event) {
  QMenuBar::paintEvent(event);
  QPainter(this).fillRect(0, height() - 2, width(), 2, palette().window());
}

}  // namespace desktop
