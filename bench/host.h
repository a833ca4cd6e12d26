#pragma once

#include <fcntl.h>

#include <string>
#include <utility>

#include "platform/descriptor.h"
#include "platform/headless.h"
#include "platform/host.h"

namespace bench {

class NoWorkspace : public platform::Workspace {
 public:
  bool launchApplication(const std::string& /*path*/) override { return true; }
};

/// What controllers stand on where nothing is shown and nothing is started. The diagnostics go the
/// way that they go in the program, to the null device.
class Host {
 public:
  explicit Host(std::string homeDirectory) : homeDirectory_(std::move(homeDirectory)) {}

  [[nodiscard]] platform::Host host() {
    return {homeDirectory_,
            homeDirectory_ + "/.config",
            homeDirectory_ + "/.local/share",
            platform::Bundle(homeDirectory_ + "/QuillonSettings.app"),
            output,
            panels,
            workspace,
            application,
            notifications};
  }

 private:
  std::string homeDirectory_;
  platform::Descriptor null_{::open("/dev/null", O_WRONLY | O_CLOEXEC)};

 public:
  platform::DescriptorOutput output{null_.get()};
  platform::NoPanels panels;
  NoWorkspace workspace;
  platform::NoApplication application;
  platform::NotificationCenter notifications;
};

}  // namespace bench
