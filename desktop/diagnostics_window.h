#pragma once

#include <QDialog>

#include "desktop/controls.h"
#include "volumes/volume_table.h"

namespace desktop {

/// What only helps to find faults in this program, out of the way of those who use it.
class DiagnosticsWindow : public QDialog {
  Q_OBJECT

 public:
  DiagnosticsWindow(volumes::VolumeTable& volumes, Edits& edits, QWidget* parent);

 private:
  Controls controls_;
};

}  // namespace desktop
