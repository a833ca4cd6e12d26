#pragma once

#include <QMenu>
#include <functional>

#include "volumes/volume_table.h"

namespace desktop {

/// What can be done with the selected disk images. It goes away by itself once it is closed.
class VolumeMenu : public QMenu {
  Q_OBJECT

 public:
  /// `remove` takes the selected image off the list.
  VolumeMenu(volumes::VolumeTable& volumes, const std::function<void()>& remove, QWidget* parent);

 private:
  QAction* add(const char* name, const QString& text, const char* icon, const QKeySequence& keys,
               const std::function<void()>& callback);
  void addMove(platform::Button& button, const QString& text, const char* icon,
               const QKeySequence& keys);
  void showInFolder() const;
  void copyPaths() const;

  volumes::VolumeTable& volumes_;
};

}  // namespace desktop
