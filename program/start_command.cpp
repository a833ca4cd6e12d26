#include "program/start_command.h"

#include <iostream>
#include <string>

#include "app/emulator_location.h"
#include "app/shared_var.h"
#include "program/headless_window.h"

namespace program {
namespace {

int fail(const std::string& reason) {
  std::cerr << "quillon-settings: " << reason << std::endl;
  return 1;
}

}  // namespace

int startWithoutWindow(const std::string& homeDirectory, const std::string& configHome,
                       const platform::Bundle& bundle, platform::Output& output) {
  HeadlessWindow window(homeDirectory, configHome, bundle, output);
  editor::ViewController& controller = window.controller;
  controller.viewDidLoad();
  if (!controller.startQuil.isEnabled()) {
    return fail("Start is disabled; choose where Quillon is in the preferences");
  }
  const std::string unread = controller.preferences.readError();
  // All values are defaults then: saving would replace the file's content without anybody seeing
  // it.
  const auto result =
      unread.empty()
          ? controller.saveAndLaunch()
          : editor::StartResult{false, window.workspace.launchApplication(app::emulatorPath())};
  if (result.saved && result.launched) {
    return 0;
  }
  std::string reason;
  if (!unread.empty()) {
    reason = "could not read the preferences file, which is left as it is (" + unread + ")";
  } else if (!result.saved) {
    reason = "could not save the preferences file";
  }
  if (!result.launched) {
    reason += (reason.empty() ? "could not start " : ", nor start ") + app::sharedVar::pathToQuil;
  }
  return fail(reason);
}

}  // namespace program
