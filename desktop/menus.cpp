#include "desktop/menus.h"

#include <QPainter>

#include "desktop/texts.h"

namespace desktop {

Menus::Menus(editor::ViewController& controller, Controls& controls, const Openers& openers)
    : controls_(controls) {
  addFile(controller, openers);
  QMenu* const edit = addMenu(tr("&Edit"));
  add(edit, tr("&Find a Setting…"), QKeySequence(Qt::CTRL | Qt::Key_F), openers.find)
      ->setObjectName(QLatin1String("findAction"));
  add(edit, tr("&Reset This Page"), {}, openers.resetPage)
      ->setObjectName(QLatin1String("resetPage"));
  edit->addSeparator();
  add(edit, tr("&Preferences…"), QKeySequence(Qt::CTRL | Qt::Key_Comma), openers.preferences);
  addPresets(controller.presets);
  QMenu* const help = addMenu(tr("&Help"));
  add(help, tr("&Diagnostics…"), {}, openers.diagnostics)
      ->setObjectName(QLatin1String("openDiagnostics"));
  add(help, tr("&Beta Agreement…"), {}, openers.agreement);
  add(help, tr("&About Quillon Settings"), {}, openers.about);
}

QAction* Menus::add(QMenu* menu, const QString& text, const QKeySequence& keys,
                    const Callback& callback) {
  auto* const entry = new QAction(text, menu);
  entry->setShortcut(keys);
  connect(entry, &QAction::triggered, this, callback);
  menu->addAction(entry);
  return entry;
}

QAction* Menus::addButton(QMenu* menu, platform::Button& button, const QString& text,
                          const QKeySequence& keys) {
  return add(menu, text, keys, [this, &button] {
    controls_.edits().endEditing();
    button.sendAction();
  });
}

void Menus::addFile(editor::ViewController& controller, const Openers& openers) {
  QMenu* const file = addMenu(tr("&File"));
  addButton(file, controller.savePrefs, tr("&Save"), QKeySequence(Qt::CTRL | Qt::Key_S));
  add(file, tr("Pre&view…"), {}, openers.preview)->setObjectName(QLatin1String("previewFile"));
  start_ =
      addButton(file, controller.startQuil, tr("S&tart"), QKeySequence(Qt::CTRL | Qt::Key_Return));
  file->addSeparator();
  addButton(file, controller.bitCreate, tr("&New Blank Image…"),
            QKeySequence(Qt::CTRL | Qt::Key_N));
  addButton(file, controller.volumes.browseFile, tr("&Add Disk Image…"),
            QKeySequence(Qt::CTRL | Qt::Key_O));
  file->addSeparator();
  addButton(file, controller.isQuit, tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q));
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
