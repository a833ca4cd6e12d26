#include "editor/view_controller.h"

#include <string>

#include "app/emulator_location.h"
#include "app/shared_var.h"

namespace editor {

using app::sharedVar;

ViewController::ViewController(const platform::Host& host)
    : preferences(host.homeDirectory, host.output),
      volumes(host.output, host.panels),
      sharedFolder(preferences, host.output, host.panels),
      display(preferences, host.output, host.panels),
      network(preferences, host.output, host.panels),
      machine(preferences, host.output, host.panels),
      input(preferences, host.output, host.panels),
      jit(preferences, host.output, host.panels),
      host_(host),
      store_(host),
      settings_(settingsByKey({&sharedFolder, &display, &network, &machine, &input, &jit})) {
  connectActions();
}

void ViewController::connectActions() {
  filename_field.action = [this] { preferences.setLocation(filename_field.stringValue()); };
  copyPrefs.action = [this] { preferences.copyToLocation(); };
  savePrefs.action = [this] { save("post write prefs test"); };
  startQuil.action = [this] { startButton(); };
  isQuit.action = [this] { host_.application.terminate(); };
}

void ViewController::viewDidLoad(document::Preferences::IfMissing ifMissing) {
  volumes.wire();
  preferencesDone_ =
      host_.notifications.addObserver("NotificationID", [this] { isStartEnabled(); });
  const std::string storedLocation = loadFrontEndSettings();
  host_.output.print("Prefs: ", storedLocation);
  host_.output.print("QuilLocal?: ", sharedVar::localPath->path());
  preferences.load(ifMissing);
  filename_field.setStringValue(preferences.prefsPath);
  for (Setting* const setting : settings_) {
    setting->load();
  }
  volumes.load(preferences.settings.allContaining("disk "));
  saved.remember();
}

std::string ViewController::loadFrontEndSettings() {
  store_.load();
  std::string storedLocation = sharedVar::pathToQuil;
  app::findLocalPath(host_.bundle, host_.output);
  app::applyLocalRule(host_.output);
  startQuil.setEnabled(sharedVar::startState);
  tabs.prepareScsiTab();
  return storedLocation;
}

void ViewController::viewWillAppear(platform::Window& window) {
  window.willClose = [this] { windowWillClose(); };
}

bool ViewController::savePrefsAny() { return save("post write prefs"); }

bool ViewController::save(std::string_view finalMessage) {
  filename_field.setEnabled(true);
  host_.application.makeFirstResponder(filename_field);
  filename_field.setEnabled(false);
  display.screen.join();
  const bool isSaved = preferences.save(volumes.volumes().paths(), finalMessage);
  if (isSaved) {
    saved.remember();
  }
  happened(isSaved ? Outcome::Kind::saved : Outcome::Kind::notSaved);
  return isSaved;
}

std::string ViewController::textToSave() const {
  return document::Preferences::composed(volumes.volumes().paths(), saved.valuesToSave());
}

void ViewController::happened(Outcome::Kind kind) { outcome_ = {kind, outcome_.number + 1}; }

StartResult ViewController::saveAndLaunch() {
  const bool isSaved = savePrefsAny();
  const bool isLaunched = host_.workspace.launchApplication(app::emulatorPath());
  happened(isLaunched ? Outcome::Kind::started : Outcome::Kind::notStarted);
  return {isSaved, isLaunched};
}

void ViewController::startButton() {
  saveAndLaunch();
  if (sharedVar::quitGUI) {
    host_.application.terminate();
  }
}

void ViewController::isStartEnabled() {
  startQuil.setEnabled(sharedVar::startState);
  tabs.updateScsiTab();
  host_.output.print("startButton: ", sharedVar::startState ? "true" : "false");
  host_.output.print("startButton: ", sharedVar::pathToQuil);
  host_.output.print("startButton: ", std::to_string(sharedVar::startFlag));
  store_.writeBack();
}

void ViewController::windowWillClose() {
  host_.output.print("windowWillClose");
  host_.application.terminate();
}

}  // namespace editor
