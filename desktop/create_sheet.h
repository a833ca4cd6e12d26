#pragma once

#include <QDialog>

#include "desktop/controls.h"
#include "volumes/create_view_controller.h"

namespace desktop {

/// The sheet for a new blank disk image.
class CreateSheet : public QDialog {
  Q_OBJECT

 public:
  CreateSheet(platform::Output& output, Edits& edits, QWidget* parent);

 private:
  [[nodiscard]] QLayout* progressRow();

  volumes::createViewController controller_;
  Controls controls_;
};

}  // namespace desktop
