#pragma once

#include <QObject>
#include <QWidget>

#include "desktop/setting_widgets.h"
#include "editor/view_controller.h"

namespace desktop {

/// Shows what a save would change: the labels of the settings in bold, a mark in the window's
/// title. It is found by comparing, each time that the program has done something and is about to
/// wait or to go on.
class ChangeMarks : public QObject {
  Q_OBJECT

 public:
  /// `window` has the page with the volumes already.
  ChangeMarks(const editor::ViewController& controller, const SettingWidgets& settingWidgets,
              QWidget& window);

 private:
  void update();

  const editor::ViewController& controller_;
  const SettingWidgets& settingWidgets_;
  QWidget& window_;
  QWidget* volumesLabel_;
  QWidget* readError_;  // there only when the file could not be read
};

}  // namespace desktop
