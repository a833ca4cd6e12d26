#include "checks/window_state.h"

#include "app/emulator_location.h"
#include "app/shared_var.h"

namespace checks {
namespace {

SettingState stateOf(const editor::Setting& setting, const document::Preferences& preferences) {
  SettingState state;
  state.value = setting.valueToSave();
  state.fileValue = preferences.fileValue(setting.key());
  state.foundLine = preferences.foundLine(setting.key());
  state.isKnown = setting.knows(state.value);
  state.fileValueIsKnown = setting.knows(state.fileValue);
  state.shown = setting.shown();
  return state;
}

PreferencesState stateOf(const document::Preferences& preferences) {
  PreferencesState state;
  if (preferences.prefsURL && preferences.prefsURL->isFile()) {
    state.path = preferences.prefsURL->path();
  }
  state.readError = preferences.readError();
  state.saveError = preferences.saveError();
  state.stamp = preferences.stamp();
  return state;
}

}  // namespace

State stateOf(const editor::ViewController& controller) {
  State state;
  for (const editor::Setting* const setting : controller.settingsInKeyOrder()) {
    state.settings[document::indexOf(setting->key())] = stateOf(*setting, controller.preferences);
  }
  // What somebody has changed since stands in no line of the file, and what it was does not matter.
  for (const document::Key key : controller.saved.changedKeys()) {
    SettingState& changed = state.settings[document::indexOf(key)];
    changed.foundLine.reset();
    changed.fileValueIsKnown = true;
  }
  state.disks = controller.volumes.volumes().paths();
  state.preferences = stateOf(controller.preferences);
  state.isStartEnabled = app::sharedVar::startState;
  state.pathToQuil = app::emulatorPath();
  state.homeDirectory = controller.preferences.dir;
  return state;
}

}  // namespace checks
