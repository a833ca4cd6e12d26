#pragma once

#include "platform/application.h"
#include "platform/output.h"
#include "platform/panels.h"

namespace platform {

/// The application where nothing is shown: nothing can be typed, and the caller ends it.
class NoApplication : public Application {
 public:
  void terminate() override {}
  void exitNow() override {}
  void makeFirstResponder(TextField& /*field*/) override {}
};

/// The diagnostics where nobody reads them.
class NoOutput : public Output {
 private:
  void write(std::initializer_list<std::string_view> /*parts*/) override {}
};

/// The panels where nothing is shown: nobody chooses anything.
class NoPanels : public Panels {
 public:
  std::vector<Location> runModal(const OpenPanel& /*panel*/) override { return {}; }
  void begin(const OpenPanel& /*panel*/, Chosen /*completion*/) override {}
  void beginSheet(const OpenPanel& /*panel*/, Chosen /*completion*/) override {}
  void beginSheet(const SavePanel& /*panel*/, Chosen /*completion*/) override {}
};

}  // namespace platform
