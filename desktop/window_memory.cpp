#include "desktop/window_memory.h"

#include <QFileInfo>
#include <QSettings>

namespace desktop {
namespace {

constexpr QLatin1String geometryKey("geometry");
constexpr QLatin1String tabKey("tab");
constexpr QLatin1String folderKey("folder");

}  // namespace

WindowMemory::WindowMemory(const QString& configHome)
    : file_(configHome + QLatin1String("/quillon-settings/window.ini")) {
  // QSettings makes a lock file and more before it finds that there is nothing to read.
  if (QFileInfo::exists(file_)) {
    const QSettings stored(file_, QSettings::IniFormat);
    geometry = stored.value(geometryKey).toByteArray();
    tab = stored.value(tabKey).toString();
    folder = stored.value(folderKey).toString();
  }
}

void WindowMemory::store() const {
  QSettings stored(file_, QSettings::IniFormat);
  stored.setValue(geometryKey, geometry);
  stored.setValue(tabKey, tab);
  stored.setValue(folderKey, folder);
}

}  // namespace desktop
