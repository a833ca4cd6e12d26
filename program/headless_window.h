#pragma once

#include <string>

#include "editor/view_controller.h"
#include "platform/headless.h"
#include "platform/host.h"

namespace program {

/// The settings window's controller with all that it stands on, where nothing is shown.
struct HeadlessWindow {
  HeadlessWindow(const std::string& homeDirectory, const std::string& configHome,
                 const platform::Bundle& bundle, platform::Output& output)
      : workspace(homeDirectory),
        controller({homeDirectory,
                    configHome,
                    {},
                    bundle,
                    output,
                    panels,
                    workspace,
                    application,
                    notifications}) {}

  platform::NoApplication application;
  platform::NoPanels panels;
  platform::ProcessWorkspace workspace;
  platform::NotificationCenter notifications;
  editor::ViewController controller;
};

}  // namespace program
