#pragma once

#include <QCloseEvent>
#include <QDialog>

#include "app/sheet_view_controller.h"
#include "desktop/controls.h"

namespace desktop {

/// What a person agrees to before trying a program that is not finished. Only its two buttons lead
/// out of it.
class AgreementSheet : public QDialog {
  Q_OBJECT

 public:
  AgreementSheet(const platform::Host& host, Edits& edits, QWidget* parent);

  /// Escape and the frame are no answer.
  void reject() override {}

 protected:
  void closeEvent(QCloseEvent* event) override { event->ignore(); }

 private:
  app::sheetViewController controller_;
  Controls controls_;
};

}  // namespace desktop
