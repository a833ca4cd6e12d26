#include <gtest/gtest.h>

#include "app/shared_var.h"
#include "tests/support/edits.h"
#include "tests/support/fake_host.h"

namespace editor {
namespace {

using platform::State;

/// A started window over a preferences file, and what a save of it must write.
struct OpenWindow {
  explicit OpenWindow(const std::string& file = {}) : model(file) {
    host.home.write(tests::FakeHost::prefs, file);
    controller.viewDidLoad();
    host.said();
  }

  void expectSaidAndSaved(const std::vector<tests::Case>& edits) {
    for (const tests::Case& edit : edits) {
      SCOPED_TRACE(edit.written);
      host.said();
      tests::perform(edit, controller);
      tests::apply(edit, model);
      EXPECT_EQ(host.said(), edit.lines("says"));
      expectSaved();
    }
  }

  void expectSaved() {
    EXPECT_TRUE(controller.savePrefsAny());
    EXPECT_EQ(host.home.read(tests::FakeHost::prefs), model.text());
  }

  tests::FakeHost host;
  ViewController controller{host.host()};
  tests::Model model;
};

TEST(Editing, IsToldAndSaved) {
  OpenWindow window;
  window.expectSaidAndSaved(tests::edits());
  const auto& port = window.controller.network.modemPort.box;
  EXPECT_EQ(platform::listText(port.items()), R"(["cu"])") << "what is typed replaces the list";
  OpenWindow odd("screen win/1280/768\nramsize 1610612737\nframeskip 3\njitcachesize 1000\n");
  odd.expectSaidAndSaved(tests::editsIn("edits-of-what-the-file-brought.txt"));
  EXPECT_EQ(odd.controller.jit.jitCache.box.items().size(), 6U) << "typed ones are listed twice";
}

TEST(Editing, PresetsAreMarksOfTheirOwn) {
  OpenWindow window;
  for (platform::Button& preset : window.controller.presets.presetsMenu) {
    for (const State before : {State::mixed, State::on, State::off}) {
      preset.setState(before);
      preset.sendAction();
      EXPECT_EQ(preset.isOn(), before == State::off) << preset.name();
    }
  }
  window.expectSaved();
}

TEST(Editing, TakesChosenPaths) {
  OpenWindow window;
  auto& [host, controller, model] = window;
  const std::string path = host.home.path("a b \u00fc%20");
  struct Chooser {
    platform::Button& button;
    TextFieldSetting& setting;
    std::string shown;
  };
  MachineGroup& machine = controller.machine;
  InputGroup& input = controller.input;
  for (const auto& [button, setting, shown] : {Chooser{.button = controller.sharedFolder.unixRoot,
                                              .setting = controller.sharedFolder.unixRootPath,
                                              .shown = "modal Choose Unix Root Folder"},
                                               Chooser{.button = machine.browseROM.button,
                                               .setting = machine.romFile,
                                               .shown = "panel Choose the ROM File"},
                                               Chooser{.button = input.rawKeyFileSelect.button,
                                               .setting = input.rawKeyFile,
                                               .shown = "panel Choose the Key Code File"}}) {
    const bool isForFolders = setting.key() == Key::extfs;
    host.panels.answers = {
        {}, {platform::Location::fromPath("/a\nb")}, {platform::Location::fromPath(path)}};
    while (!host.panels.answers.empty()) {
      EXPECT_EQ(host.panels.open.directory, "") << "no file was chosen before";
      button.sendAction();
    }
    model[setting.key()] = path;
    EXPECT_EQ(host.said(), "A line feed cannot stand in the preferences file: file:///a%0Ab\n" +
                               std::string(isForFolders ? "extfs " : "") + path + "\n");
    EXPECT_EQ(setting.field.stringValue(), path);
    button.sendAction();
    const platform::OpenPanel& panel = std::exchange(host.panels.open, {});
    EXPECT_EQ(panel.directory, host.home.path()) << "it opens where the last one was";
    EXPECT_EQ(host.panels.shown, shown);
    EXPECT_EQ(panel.canChooseDirectories && panel.canCreateDirectories, isForFolders);
    EXPECT_NE(panel.canChooseFiles, isForFolders);
  }
  window.expectSaved();
}

TEST(ViewController, LaunchesAndQuitsWhetherOrNotItSaved) {
  OpenWindow window("cpu 4\n");
  auto& [host, controller, model] = window;
  struct Start {
    bool saves;
    bool launches;
    bool quits;
  };
  for (const Start& start : {Start{.saves = true, .launches = true, .quits = false},
                             Start{.saves = true, .launches = false, .quits = true},
                             Start{.saves = false, .launches = true, .quits = true}}) {
    controller.preferences.setLocation(host.home.path(start.saves ? "prefs" : "no/prefs"));
    controller.machine.stateCDROM.change(start.launches ? "true" : "false");
    host.workspace.starts = start.launches;
    app::sharedVar::quitGUI = start.quits;
    controller.startQuil.sendAction();
    const std::string said = host.said();
    EXPECT_TRUE(said.ends_with("<launch " + host.home.path() + "//Quillon.app>\n" +
                               (start.quits ? "<terminate>\n" : "")))
        << said;
    EXPECT_EQ(said.find("couldn't save prefs file") == said.npos, start.saves) << said;
    EXPECT_EQ(controller.saved.changedKeys().empty(), start.saves);
  }
  controller.isQuit.sendAction();
  EXPECT_EQ(host.said(), "<terminate>\n") << "nothing is saved";
  controller.savePrefs.sendAction();
  EXPECT_NE(host.said().find("post write prefs test\n"), std::string::npos);
  EXPECT_FALSE(controller.filename_field.isEnabled());
}

}  // namespace
}  // namespace editor
