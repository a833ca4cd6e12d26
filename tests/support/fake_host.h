#pragma once

#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "app/shared_var.h"
#include "platform/host.h"
#include "tests/support/temporary_folder.h"

namespace tests {

/// Answers panels in turn with what is queued, and with a cancel when nothing
/// is.
struct FakePanels : platform::Panels {
  std::deque<std::vector<platform::Location>> answers;
  std::string shown;         // the kind and the title of the last one
  platform::OpenPanel open;  // as shown last

  std::vector<platform::Location> runModal(const platform::OpenPanel& panel) override {
    return answer("modal ", panel);
  }
  void begin(const platform::OpenPanel& panel, Chosen completion) override {
    completion(answer("panel ", panel));
  }
  void beginSheet(const platform::OpenPanel& panel, Chosen completion) override {
    completion(answer("sheet ", panel));
  }
  void beginSheet(const platform::SavePanel& panel, Chosen completion) override {
    open.title = panel.title;
    completion(answer("save sheet ", open));
  }

 private:
  std::vector<platform::Location> answer(const char* kind, const platform::OpenPanel& panel) {
    shown = kind + panel.title;
    open = panel;
    if (answers.empty()) {
      return {};
    }
    auto chosen = std::move(answers.front());
    answers.pop_front();
    return chosen;
  }
};

/// Its calls stand in angle brackets among the diagnostics, so that their order
/// is seen.
struct FakeWorkspace : platform::Workspace {
  explicit FakeWorkspace(platform::Output& log) : output(log) {}

  platform::Output& output;
  bool starts = true;

  bool launchApplication(const std::string& path) override {
    output.print("<launch ", path, ">");
    return starts;
  }
};

/// The same.
struct FakeApplication : platform::Application {
  explicit FakeApplication(platform::Output& log) : output(log) {}

  platform::Output& output;

  void terminate() override { output.print("<terminate>"); }
  void exitNow() override { output.print("<exit>"); }
  void makeFirstResponder(platform::TextField& field) override {
    output.print("<", field.isEnabled() ? "" : "disabled ", "first responder ", field.name(), ">");
  }
};

/// What controllers stand on, in a home folder of its own that also holds the
/// bundle.
struct FakeHost {
  TemporaryFolder home;
  platform::BufferOutput output;
  FakePanels panels;
  FakeWorkspace workspace{output};
  FakeApplication application{output};
  platform::NotificationCenter notifications;

  static constexpr const char* prefs = ".quillon_prefs";
  static constexpr const char* settings = "QuillonSettings.app/Contents/Resources/Prefs.plist";

  FakeHost() {
    home.write(settings, "");
    std::filesystem::copy_file(QUILLON_SOURCE "/resources/Prefs.plist", home.path(settings),
                               std::filesystem::copy_options::overwrite_existing);
    using Shared = app::sharedVar;
    Shared::pathToQuil = Shared::pathToQuilRoot = "";
    Shared::startFlag = app::startNone;
    Shared::localPath.reset();
    Shared::newScsiTab.reset();
    Shared::startState = Shared::scsiTabState = Shared::quitGUI = false;
  }

  platform::Host host() { return host(application, panels); }
  platform::Host host(platform::Application& running, platform::Panels& shown) {
    const platform::Bundle bundle(home.path("QuillonSettings.app"));
    return {home.path(),
            home.path(".config"),
            home.path(".local/share"),
            bundle,
            output,
            shown,
            workspace,
            running,
            notifications};
  }

  /// The diagnostics since the last call.
  std::string said() { return std::exchange(output.text, {}); }
};

}  // namespace tests
