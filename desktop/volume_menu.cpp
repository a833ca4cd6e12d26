#include "desktop/volume_menu.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QUrl>
#include <algorithm>

#include "desktop/icons.h"
#include "desktop/texts.h"
#include "desktop/volume_view.h"

namespace desktop {

VolumeMenu::VolumeMenu(volumes::VolumeTable& volumes, const std::function<void()>& remove,
                       QWidget* parent)
    : QMenu(parent), volumes_(volumes) {
  setObjectName(QLatin1String("volumeMenu"));
  setAttribute(Qt::WA_DeleteOnClose);
  addMove(volumes.moveUp, tr("Move &Up"), "go-up", moveUpKeys);
  addMove(volumes.moveDown, tr("Move &Down"), "go-down", moveDownKeys);
  const auto selected = volumes.tableView.selectedRow();
  add("removeVol", tr("&Remove"), "list-remove", Qt::Key_Delete, remove)
      ->setEnabled(selected.has_value());
  addSeparator();
  const auto& names = volumes.volumes().volName();
  add("showInFolder", tr("Show in &Folder"), "folder-open", {}, [this] {
    showInFolder();
  })->setEnabled(selected && names[*selected].isFile());
  add("copyPath", tr("&Copy Path"), "edit-copy", {}, [this] {
    copyPaths();
  })->setEnabled(selected.has_value());
}

QAction* VolumeMenu::add(const char* name, const QString& text, const char* icon,
                         const QKeySequence& keys, const std::function<void()>& callback) {
  QAction* const entry = addAction(text);
  entry->setObjectName(QLatin1String(name));
  entry->setShortcut(keys);
  giveIcon(entry, this, icon);
  entry->setShortcutVisibleInContextMenu(true);
  connect(entry, &QAction::triggered, this, callback);
  return entry;
}

void VolumeMenu::addMove(platform::Button& button, const QString& text, const char* icon,
                         const QKeySequence& keys) {
  add(button.name().c_str(), text, icon, keys, [&button] {
    button.sendAction();
  })->setEnabled(button.isEnabled());
}

// The folder is opened by whatever the desktop has for that. It is not looked at here first: it may
// be on a network mount that is dead.
void VolumeMenu::showInFolder() const {
  const std::string path = volumes_.volumes().volName()[*volumes_.tableView.selectedRow()].path();
  const QString file = QFile::decodeName(QByteArray::fromStdString(path));
  QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(file).path()));
}

// In the order of the table, a line for each.
void VolumeMenu::copyPaths() const {
  std::vector<std::size_t> rows = volumes_.tableView.selectedRows();
  std::sort(rows.begin(), rows.end());
  QStringList paths;
  for (const std::size_t row : rows) {
    paths.append(toQString(volumes_.volumes().volName()[row].path()));
  }
  QGuiApplication::clipboard()->setText(paths.join(QLatin1Char('\n')));
}

}  // namespace desktop
