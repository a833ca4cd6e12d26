#pragma once

#include <QWidget>

#include "desktop/controls.h"
#include "desktop/setting_widgets.h"
#include "editor/view_controller.h"

namespace desktop {

/// What the tabs hold, a function for each. `places` takes in where each setting went, `images` is
/// the folder with the pictures.
QWidget* volumesPage(Controls& controls, SettingWidgets& places, editor::ViewController& controller,
                     const QString& images);
QWidget* scsiPage(Controls& controls, editor::ViewController& controller);
QWidget* machinePage(Controls& controls, SettingWidgets& places,
                     editor::ViewController& controller);
QWidget* displayPage(Controls& controls, SettingWidgets& places,
                     editor::ViewController& controller);
QWidget* soundPage(Controls& controls, SettingWidgets& places, editor::ViewController& controller);
QWidget* networkPage(Controls& controls, SettingWidgets& places,
                     editor::ViewController& controller);
QWidget* jitPage(Controls& controls, SettingWidgets& places, editor::ViewController& controller);

}  // namespace desktop
