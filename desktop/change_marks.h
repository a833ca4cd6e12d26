#pragma once

#include <QWidget>

#include "desktop/setting_widgets.h"
#include "desktop/unsaved_bar.h"
#include "editor/view_controller.h"

namespace desktop {

/// Shows what a save would change: labels in bold, a mark in the window's title, a count.
class ChangeMarks {
 public:
  /// The widgets that show it. They stay for as long as this object is there.
  struct Marked {
    QWidget* window;
    const SettingWidgets& settings;  // more are added while the pages are being made
    QWidget* volumesLabel;
    UnsavedBar* unsaved;
  };

  ChangeMarks(const editor::ViewController& controller, const Marked& marked);

  /// Shows the state of now.
  void update();

 private:
  const editor::ViewController& controller_;
  Marked marked_;
};

}  // namespace desktop
