#pragma once

#include <string>

#include "platform/application.h"
#include "platform/bundle.h"
#include "platform/notification_center.h"
#include "platform/output.h"
#include "platform/panels.h"
#include "platform/workspace.h"

namespace platform {

/// Everything that a controller stands on.
struct Host {
  std::string homeDirectory;  // as the user's session gives it
  std::string configHome;     // where programs keep settings that cannot stay in their bundle
  std::string dataHome;       // where programs keep a person's data
  Bundle bundle;              // the front-end's own
  Output& output;
  Panels& panels;
  Workspace& workspace;
  Application& application;
  NotificationCenter& notifications;
};

}  // namespace platform
