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

/// What the tabs hold, a function for each.
QWidget* volumesPage(const PageContext& context);
QWidget* scsiPage(const PageContext& context);
QWidget* machinePage(const PageContext& context);
QWidget* displayPage(const PageContext& context);
QWidget* soundPage(const PageContext& context);
QWidget* networkPage(const PageContext& context);
QWidget* jitPage(const PageContext& context);

}  // namespace desktop
