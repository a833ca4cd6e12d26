#include <gtest/gtest.h>

#include "app/shared_var.h"
#include "tests/support/edits.h"
#include "tests/support/fake_host.h"

namespace editor {
namespace {

using tests::Edit;
using tests::Key;
using tests::State;

/// A started window over a preferences file, and what a save of it must write.
struct OpenWindow {
  explicit OpenWindow(const std::string& file = {}) : model(file) {
    host.home.write(tests::FakeHost::prefs, file);
    controller.viewDidLoad();
    host.said();
  }

  void expectSaid(const Edit& edit) {
    host.said();
    tests::perform(controller, edit);
    edit.applyTo(model);
    EXPECT_EQ(host.said(), edit.said);
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
  for (const Edit& edit : tests::edits) {
    SCOPED_TRACE(std::string(edit.control) + " " + edit.said);
    window.expectSaid(edit);
    window.expectSaved();
  }
  const auto& box = window.controller.jit.jitCache.box;
  EXPECT_EQ(platform::listText(box.items()), R"(["2048", "4096", "8192", "16384", "abc"])");
  const auto& port = window.controller.network.modemPort.box;
  EXPECT_EQ(platform::listText(port.items()), R"(["cu"])") << "what is typed replaces the list";
}

TEST(Editing, OfWhatTheFileBroughtOrWasTypedBefore) {
  OpenWindow window("screen win/1280/768\nramsize 1610612737\nframeskip 3\njitcachesize 1000\n");
  const std::string sharedFolder(document::rowOf(Key::extfs).defaultValue);
  // clang-format off
  const std::vector<Edit> inOrder = {
      {.control = "ramSizeMB", .chosen = 10, .said = "1048576\nnil\n1610612737\n"},
      {.control = "refreshRate", .chosen = 7, .said = "7\n3\n"},
      {.control = "screenWidth", .typed = "1152", .said = "1152\n", .values = {{Key::screen, "1152"}}, .screenPart = 1},
      {.control = "screenWidth", .chosen = 5, .said = "1280\n", .values = {{Key::screen, "1280"}}, .screenPart = 1},
      {.control = "jitCache", .typed = "4096", .said = "4096\n", .values = {{Key::jitcachesize, "4096"}}},
      {.control = "jitCache", .chosen = 4, .said = "1000\n", .values = {{Key::jitcachesize, "1000"}}},
      {.control = "unixRootPath", .typed = sharedFolder, .said = sharedFolder + "\n"},
      {.control = "tunnelUDP", .clicked = State::mixed},
      {.control = "rawKeys", .clicked = State::mixed},
      {.control = "enableJIT", .clicked = State::mixed, .said = "true\n", .values = {{Key::jit, "true"}}}};
  // clang-format on
  for (const Edit& edit : inOrder) {
    SCOPED_TRACE(std::string(edit.control) + " " + edit.said);
    window.expectSaid(edit);
    window.expectSaved();
  }
  EXPECT_EQ(window.controller.jit.jitCache.box.items().size(), 6U) << "typed ones are listed twice";
}

TEST(Editing, EachEntryStandsForItsValue) {
  OpenWindow window;
  const auto expectValues = [&](const char* control, Key key,
                                const std::vector<std::string>& values) {
    for (std::size_t entry = 0; entry < values.size(); ++entry) {
      tests::perform(window.controller, {.control = control, .chosen = entry});
      EXPECT_EQ(window.controller.preferences.value(key), values[entry]) << control << " " << entry;
    }
  };
  expectValues("refreshRate", Key::frameskip, {"0", "1", "2", "4", "6", "8", "12"});
  expectValues("cpuType", Key::cpu, {"2", "2", "3", "3", "4"});
  expectValues("cpuType", Key::fpu, {"false", "true", "false", "true", "true"});
  expectValues("jitCache", Key::jitcachesize, {"2048", "4096", "8192", "16384"});
}

TEST(Editing, ResetsEachSettingToItsDefault) {
  OpenWindow window;
  for (const Edit& edit : tests::edits) {
    tests::perform(window.controller, edit);
  }
  for (Setting* const setting : window.controller.settingsInKeyOrder()) {
    setting->reset();
  }
  EXPECT_TRUE(window.controller.saved.changedKeys().empty());
  window.expectSaved();
}

TEST(Editing, PresetsAreMarksOfTheirOwn) {
  OpenWindow window;
  auto& presets = window.controller.presets.presetsMenu;
  for (platform::Button& preset : presets) {
    for (const State before : {State::off, State::on, State::mixed}) {
      preset.setState(before);
      preset.sendAction();
      EXPECT_EQ(preset.isOn(), before == State::off) << preset.name();
    }
    preset.setOn(true);
  }
  for (const platform::Button& preset : presets) {
    EXPECT_TRUE(preset.isOn()) << preset.name();
  }
  window.expectSaved();
}

TEST(Editing, TakesChosenPaths) {
  OpenWindow window;
  auto& [host, controller, model] = window;
  const platform::OpenPanel& panel = host.panels.open;
  const std::string path = host.home.path("a b \u00fc%20");
  const auto expectChosen = [&](platform::Button& button, TextFieldSetting& setting,
                                const std::string& shown, const std::string& label, bool isFolder) {
    SCOPED_TRACE(button.name());
    button.sendAction();
    EXPECT_EQ(host.said(), "") << "a cancel changes nothing";
    EXPECT_EQ(panel.directory, "") << "no file was chosen before";
    host.panels.answers = {{platform::Location::fromPath("/a\nb")}};
    button.sendAction();
    EXPECT_EQ(host.said(), "A line feed cannot stand in the preferences file: file:///a%0Ab\n");
    host.panels.answers = {{platform::Location::fromPath(path)}};
    button.sendAction();
    EXPECT_EQ(host.said(), label + path + "\n");
    EXPECT_EQ(setting.field.stringValue(), path);
    model[setting.key()] = path;
    button.sendAction();
    EXPECT_EQ(panel.directory, host.home.path()) << "it opens where the last one was";
    EXPECT_EQ(host.panels.shown, shown);
    EXPECT_EQ(panel.canChooseDirectories && panel.canCreateDirectories, isFolder);
    EXPECT_NE(panel.canChooseFiles, isFolder);
  };
  SharedFolderGroup& folder = controller.sharedFolder;
  MachineGroup& machine = controller.machine;
  InputGroup& input = controller.input;
  expectChosen(folder.unixRoot, folder.unixRootPath, "modal Choose Unix Root Folder", "extfs ",
               true);
  expectChosen(machine.browseROM.button, machine.romFile, "panel ", "", false);
  expectChosen(input.rawKeyFileSelect.button, input.rawKeyFile, "panel ", "", false);
  window.expectSaved();
}

TEST(ViewController, LaunchesAndQuitsWhetherOrNotItSaved) {
  OpenWindow window("cpu 4\n");
  auto& [host, controller, model] = window;
  const std::string file = host.home.path(tests::FakeHost::prefs);
  const std::string launch = "<launch " + host.home.path() + "//Quillon.app>\n";
  for (const bool saves : {true, false}) {
    if (!saves) {
      std::filesystem::remove(file);
      std::filesystem::create_directory(file);
    }
    for (const bool quits : {false, true}) {
      SCOPED_TRACE(std::string(saves ? "saves" : "cannot save") + (quits ? ", quits" : ""));
      app::sharedVar::quitGUI = quits;
      host.workspace.starts = !host.workspace.starts;
      controller.startQuil.sendAction();
      const std::string said = host.said();
      EXPECT_TRUE(said.ends_with(launch + (quits ? "<terminate>\n" : ""))) << said;
      EXPECT_EQ(said.find("couldn't save prefs file") == said.npos, saves);
      const auto [saved, launched] = controller.saveAndLaunch();
      EXPECT_EQ(saved, saves);
      EXPECT_EQ(launched, host.workspace.starts);
    }
  }
  host.said();
  controller.isQuit.sendAction();
  EXPECT_EQ(host.said(), "<terminate>\n") << "nothing is saved";
  controller.savePrefs.sendAction();
  EXPECT_NE(host.said().find("post write prefs test\n"), std::string::npos);
  EXPECT_FALSE(controller.filename_field.isEnabled());
}

}  // namespace
}  // namespace editor
