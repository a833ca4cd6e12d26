#include "app/start_command.h"

#include <iostream>
#include <string>

#include "app/shared_var.h"
#include "editor/view_controller.h"
#include "platform/headless.h"
#include "platform/host.h"

namespace app {
namespace {

int fail(const std::string& reason) {
  std::cerr << "quillon-settings: " << reason << std::endl;
  return 1;
}

}  // namespace

int startWithoutWindow(const std::string& homeDirectory, const std::string& configHome,
                       const platform::Bundle& bundle, platform::Output& output) {
  platform::NoApplication application;
  platform::NoPanels panels;
  platform::ProcessWorkspace workspace(homeDirectory);
  platform::NotificationCenter notifications;
  editor::ViewController controller(
      {homeDirectory, configHome, bundle, output, panels, workspace, application, notifications});
  controller.viewDidLoad();
  if (!controller.startQuil.isEnabled()) {
    return fail("Start is disabled; choose where Quillon is in the preferences");
  }
  if (!controller.preferences.readError().empty()) {
    // Nobody has seen that saving would put defaults in the place of what they had.
    workspace.launchApplication(sharedVar::pathToQuil);
    return fail("could not read the preferences file, which is left as it is: " +
                controller.preferences.readError());
  }
  const editor::StartResult result = controller.saveAndLaunch();
  if (result.saved && result.launched) {
    return 0;
  }
  return fail(result.launched ? "could not save the preferences file"
              : result.saved
                  ? "could not start " + sharedVar::pathToQuil
                  : "could not save the preferences file, nor start " + sharedVar::pathToQuil);
}

}  // namespace app
