#pragma once

#include <QPointer>

#include "desktop/diagnostics_window.h"
#include "desktop/edits.h"
#include "desktop/preferences_window.h"
#include "editor/view_controller.h"
#include "platform/host.h"
#include "volumes/image_folder.h"

namespace desktop {

/// The windows that the settings window opens. Those that one may work beside are there once, the
/// others are in front of it until they are left.
class OpenedWindows {
 public:
  OpenedWindows(editor::ViewController& controller, const platform::Host& host, Edits& edits,
                QWidget* settingsWindow);

  PreferencesWindow* openPreferences();
  void openDiagnostics();
  void openPreview();
  void openAgreement();
  void openCreation();

 private:
  editor::ViewController& controller_;
  platform::Host host_;
  volumes::ImageFolder imageFolder_{host_.dataHome};
  Edits& edits_;
  QWidget* settingsWindow_;
  QPointer<PreferencesWindow> preferences_;
  QPointer<DiagnosticsWindow> diagnostics_;
};

}  // namespace desktop
