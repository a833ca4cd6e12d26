#pragma once

#include <fcntl.h>

#include <string>
#include <utility>
#include <vector>

#include "platform/descriptor.h"
#include "platform/host.h"

namespace bench {

class NoApplication : public platform::Application {
 public:
  void terminate() override {}
  void exitNow() override {}
  void makeFirstResponder(platform::TextField& /*field*/) override {}
};

class NoWorkspace : public platform::Workspace {
 public:
  bool launchApplication(const std::string& /*path*/) override { return true; }
};

class NoPanels : public platform::Panels {
 public:
  std::vector<platform::Location> runModal(const platform::OpenPanel& /*panel*/) override {
    return {};
  }
  void begin(const platform::OpenPanel& /*panel*/, Chosen /*completion*/) override {}
  void beginSheet(const platform::OpenPanel& /*panel*/, Chosen /*completion*/) override {}
  void beginSheet(const platform::SavePanel& /*panel*/, Chosen /*completion*/) override {}
};

/// What controllers stand on where nothing is shown and nothing is started. The diagnostics go the
/// way that they go in the program, to the null device.
class Host {
 public:
  explicit Host(std::string homeDirectory) : homeDirectory_(std::move(homeDirectory)) {}

  [[nodiscard]] platform::Host host() {
    return {homeDirectory_,
            homeDirectory_ + "/.config",
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
  NoPanels panels;
  NoWorkspace workspace;
  NoApplication application;
  platform::NotificationCenter notifications;
};

}  // namespace bench
