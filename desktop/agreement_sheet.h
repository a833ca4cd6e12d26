#pragma once

#include <QDialog>

#include "app/sheet_view_controller.h"
#include "desktop/controls.h"

namespace desktop {

/// What a person agrees to before trying a program that is not finished.
class AgreementSheet : public QDialog {
  Q_OBJECT

 public:
  AgreementSheet(const platform::Host& host, Edits& edits, QWidget* parent);

 private:
  app::sheetViewController controller_;
  Controls controls_;
};

}  // namespace desktop
