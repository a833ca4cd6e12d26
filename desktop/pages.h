#pragma once

#include <QWidget>

#include "desktop/controls.h"
#include "desktop/setting_widgets.h"
#include "editor/view_controller.h"

namespace desktop {

/// What a page is made of.
struct PageContext {
  Controls& controls;
  SettingWidgets& settingWidgets;  // takes in where each setting went
  QWidget*& volumesLabel;          // is set by the page that has it
  editor::ViewController& controller;
  const platform::Bundle& bundle;  // has the pictures
};

/// Makes what a tab holds.
QWidget* makePage(editor::TabId id, const PageContext& context);

}  // namespace desktop
