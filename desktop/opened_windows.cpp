#include "desktop/opened_windows.h"

#include "desktop/agreement_sheet.h"
#include "desktop/create_sheet.h"
#include "desktop/preview_window.h"

namespace desktop {
namespace {

void bringUp(QWidget* window) {
  window->show();
  window->raise();
  window->activateWindow();
}

}  // namespace

OpenedWindows::OpenedWindows(editor::ViewController& controller, const platform::Host& host,
                             Edits& edits, QWidget* settingsWindow)
    : controller_(controller), host_(host), edits_(edits), settingsWindow_(settingsWindow) {}

PreferencesWindow* OpenedWindows::openPreferences() {
  if (preferences_ == nullptr) {
    preferences_ = new PreferencesWindow(host_, edits_, settingsWindow_);
  }
  bringUp(preferences_);
  return preferences_;
}

void OpenedWindows::openDiagnostics() {
  if (diagnostics_ == nullptr) {
    diagnostics_ = new DiagnosticsWindow(controller_.volumes, edits_, settingsWindow_);
  }
  bringUp(diagnostics_);
}

// As a save would, it takes in first what is being typed.
void OpenedWindows::openPreview() {
  edits_.endEditing();
  (new PreviewWindow(controller_, settingsWindow_))->open();
}

void OpenedWindows::openAgreement() {
  (new AgreementSheet(host_, edits_, settingsWindow_))->open();
}

void OpenedWindows::openCreation() {
  const auto add = [this](const std::string& path) { controller_.volumes.chooseFiles(path); };
  (new CreateSheet(host_, imageFolder_, edits_, add, settingsWindow_))->open();
}

}  // namespace desktop
