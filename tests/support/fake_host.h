#pragma once

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "app/shared_var.h"
#include "platform/host.h"
#include "tests/support/temporary_folder.h"

namespace tests {

/// Answers panels in turn with what is queued, and with a cancel when nothing is.
struct FakePanels : platform::Panels {
  std::deque<std::vector<platform::Location>> answers;
  std::vector<std::string> shown;  // "modal", "panel", "sheet" or "save sheet"
  platform::OpenPanel open;        // as shown last
  platform::SavePanel save;

  std::vector<platform::Location> runModal(const platform::OpenPanel& panel) override {
    open = panel;
    return answer("modal");
  }
  void begin(const platform::OpenPanel& panel, Chosen completion) override {
    open = panel;
    completion(answer("panel"));
  }
  void beginSheet(const platform::OpenPanel& panel, Chosen completion) override {
    open = panel;
    completion(answer("sheet"));
  }
  void beginSheet(const platform::SavePanel& panel, Chosen completion) override {
    save = panel;
    completion(answer("save sheet"));
  }

 private:
  std::vector<platform::Location> answer(const char* kind) {
    shown.emplace_back(kind);
    if (answers.empty()) {
      return {};
    }
    auto chosen = std::move(answers.front());
    answers.pop_front();
    return chosen;
  }
};

/// Its calls stand in angle brackets among the diagnostics, too, so that their order is seen.
struct FakeWorkspace : platform::Workspace {
  explicit FakeWorkspace(platform::Output& log) : output(log) {}

  platform::Output& output;
  bool starts = true;
  std::vector<std::string> launched;

  bool launchApplication(const std::string& path) override {
    output.print("<launch ", path, ">");
    launched.push_back(path);
    return starts;
  }
};

struct FakeApplication : platform::Application {
  explicit FakeApplication(platform::Output& log) : output(log) {}

  platform::Output& output;
  std::vector<std::string> calls;
  std::function<void()> endEditing;  // an edit that is under way

  void terminate() override { note("terminate"); }
  void exitNow() override { note("exit"); }
  void makeFirstResponder(platform::TextField& field) override {
    note((field.isEnabled() ? "first responder " : "disabled first responder ") + field.name());
    if (const auto end = std::exchange(endEditing, nullptr)) {
      end();
    }
  }

 private:
  void note(const std::string& call) {
    output.print("<", call, ">");
    calls.push_back(call);
  }
};

/// What controllers stand on, in a home folder of its own that also holds the bundle.
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
    namespace fs = std::filesystem;
    fs::create_directories(fs::path(home.path(settings)).parent_path());
    fs::copy_file(QUILLON_SOURCE "/resources/Prefs.plist", home.path(settings));
    using Shared = app::sharedVar;
    Shared::pathToQuil.clear();
    Shared::pathToQuilRoot.clear();
    Shared::startFlag = app::startNone;
    Shared::localPath.reset();
    Shared::newScsiTab.reset();
    Shared::startState = Shared::scsiTabState = Shared::quitGUI = false;
  }

  platform::Host host() {
    return {home.path(),
            home.path(".config"),
            platform::Bundle(home.path("QuillonSettings.app")),
            output,
            panels,
            workspace,
            application,
            notifications};
  }

  /// The diagnostics since the last call.
  std::string said() { return std::exchange(output.text, {}); }
};

}  // namespace tests
