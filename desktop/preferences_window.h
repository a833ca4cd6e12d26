#pragma once

#include <QDialog>

#include "app/prefs_view_controller.h"
#include "desktop/controls.h"
#include "platform/host.h"

namespace desktop {

/// The window with the front-end's own preferences.
class PreferencesWindow : public QDialog {
  Q_OBJECT

 public:
  PreferencesWindow(const platform::Host& host, Edits& edits, QWidget* parent);

  /// What shows where Quillon is.
  [[nodiscard]] QWidget* location() const { return location_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  [[nodiscard]] QLayout* locationRow();

  app::prefsViewController controller_;
  Controls controls_;
  QWidget* location_ = nullptr;
};

}  // namespace desktop
