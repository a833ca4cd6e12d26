#include "app/prefs_view_controller.h"

#include <filesystem>
#include <string>

#include "app/emulator_location.h"
#include "app/shared_var.h"
#include "platform/translatable.h"

namespace app {
namespace {

// A mixed state leaves the flag as it is.
void takeState(const platform::Button& box, bool& flag) {
  if (box.state() != platform::State::mixed) {
    flag = box.isOn();
  }
}

}  // namespace

prefsViewController::prefsViewController(const platform::Host& host) : host_(host) {
  for (platform::Button* const button : {&quilOff, &quilLocal, &quilCustom}) {
    button->action = [this, button] {
      turnOn(*button);
      radioButtonChanged();
    };
  }
  SCSItab.action = [this] { scsiState(); };
  quitOnStart.action = [this] { GUIstate(); };
  Quillon.action = [this] { QuilApp(); };
  chooseQuillon.action = [this] { chooseApplication(); };
  testLaunch.action = [this] { launchTest(); };
  Done.action = [this] { finish(); };
  chooseQuillon.setEnabled(false);
}

void prefsViewController::scsiState() { takeState(SCSItab, sharedVar::scsiTabState); }

void prefsViewController::GUIstate() { takeState(quitOnStart, sharedVar::quitGUI); }

// The three modes exclude each other.
void prefsViewController::turnOn(platform::Button& radioButton) {
  for (platform::Button* const button : {&quilOff, &quilLocal, &quilCustom}) {
    button->setOn(button == &radioButton);
  }
  chooseQuillon.setEnabled(quilCustom.isOn());
}

void prefsViewController::viewWillAppear() {
  Quillon.setStringValue(sharedVar::pathToQuil);
  host_.output.print("started prefs..");
  host_.output.print("start flag: ", std::to_string(sharedVar::startFlag));
  host_.output.print("path to quil is: ", Quillon.stringValue());
  chooseMode();
  SCSItab.setOn(sharedVar::scsiTabState);
  quitOnStart.setOn(sharedVar::quitGUI);
}

void prefsViewController::chooseMode() {
  if (Quillon.stringValue().empty()) {
    Quillon.setEnabled(false);
    sharedVar::startState = false;
    sharedVar::startFlag = startNone;
    turnOn(quilOff);
    host_.output.print("loaded as empty");
  } else if (sharedVar::startFlag == startLocal) {
    Quillon.setEditable(false);
    sharedVar::startState = true;
    turnOn(quilLocal);
    host_.output.print("loaded as local");
  } else if (sharedVar::startFlag == startCustom) {
    Quillon.setEnabled(true);
    sharedVar::startState = true;
    turnOn(quilCustom);
    host_.output.print("loaded as custom");
  }
}

void prefsViewController::radioButtonChanged() {
  if (quilOff.isOn()) {
    sharedVar::startFlag = startNone;
    sharedVar::startState = false;
    sharedVar::pathToQuil.clear();
    Quillon.setEnabled(false);
    Quillon.setEditable(false);
    Quillon.setStringValue(sharedVar::pathToQuil);
    host_.output.print("is empty");
  } else if (quilCustom.isOn()) {
    Quillon.setEnabled(true);
    Quillon.setEditable(true);
    Quillon.setStringValue({});
    host_.application.makeFirstResponder(Quillon);
    sharedVar::startState = true;
    sharedVar::startFlag = startCustom;
    host_.output.print("is custom, flag is ", std::to_string(sharedVar::startFlag));
  } else if (quilLocal.isOn()) {
    Quillon.setEnabled(true);
    Quillon.setEditable(false);
    Quillon.setStringValue({});
    sharedVar::startState = true;
    sharedVar::startFlag = startLocal;
    // Not pathToQuilRoot alone: Start would try to launch that folder until the next start-up, when
    // applyLocalRule() adds the name.
    sharedVar::pathToQuil = localEmulator();
    Quillon.setStringValue(sharedVar::pathToQuil);
    host_.output.print("PathToQuil? ", sharedVar::pathToQuil);
  }
}

void prefsViewController::QuilApp() {
  if (!quilCustom.isOn()) {
    return;
  }
  const std::string& location = Quillon.stringValue();
  if (location.find("Quillon") == std::string::npos) {
    Quillon.setStringValue({});
    return;
  }
  sharedVar::startFlag = startCustom;
  sharedVar::startState = true;
  sharedVar::pathToQuil = location;
}

void prefsViewController::chooseApplication() {
  platform::OpenPanel panel;
  panel.title = platform::translatable("Panels", "Choose Quillon");
  panel.canChooseDirectories = true;  // a bundle is a folder
  panel.directory = std::filesystem::path(sharedVar::pathToQuil).parent_path().string();
  const auto answer = [this, alive = std::weak_ptr(alive_)](const auto& chosen) {
    if (!alive.expired() && !chosen.empty()) {
      Quillon.setStringValue(chosen.front().path());
      QuilApp();
    }
  };
  host_.panels.beginSheet(panel, answer);
}

void prefsViewController::launchTest() {
  if (Quillon.stringValue().empty()) {
    sharedVar::startFlag = startNone;
    return;
  }
  sharedVar::startFlag = startCustom;
  sharedVar::pathToQuil = Quillon.stringValue();
  host_.workspace.launchApplication(emulatorPath());
}

void prefsViewController::finish() {
  host_.output.print("done!");
  host_.output.print("start? ", sharedVar::startState ? "true" : "false");
  host_.output.print(sharedVar::pathToQuil);
  host_.notifications.post("NotificationID");
  if (dismiss) {
    dismiss();
  }
}

}  // namespace app
