#pragma once

#include <QWidget>

#include "desktop/controls.h"
#include "editor/view_controller.h"

namespace desktop {

/// What the tabs hold, a function for each. `images` is the folder with the pictures.
QWidget* volumesPage(Controls& controls, editor::ViewController& controller, const QString& images);
QWidget* scsiPage(Controls& controls, editor::ViewController& controller);
QWidget* machinePage(Controls& controls, editor::ViewController& controller);
QWidget* displayPage(Controls& controls, editor::ViewController& controller);
QWidget* soundPage(Controls& controls, editor::ViewController& controller);
QWidget* networkPage(Controls& controls, editor::ViewController& controller);
QWidget* jitPage(Controls& controls, editor::ViewController& controller);

}  // namespace desktop
