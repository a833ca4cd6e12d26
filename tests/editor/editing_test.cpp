#include <gtest/gtest.h>

#include "app/shared_var.h"
#include "fuzz/use.h"
#include "tests/editor/window.h"

namespace editor {
namespace {

using platform::State;
using C = ViewController;
constexpr fuzz::ControlHand hand;

void click(platform::Button& button, State state) {
  button.edit([&] { button.setState(state); });
}

struct Edit {
  void (*edit)(C&);
  std::string said;
  Key key;
  std::string value;  // that a save then writes
};

// clang-format off
const std::vector<Edit> edits = {
    {[](C& c) { hand.type(c.sharedFolder.unixRootPath.field, "/a b/"); }, "/a b/\n", Key::extfs, "/a b/"},
    {[](C& c) { hand.type(c.sharedFolder.unixRootPath.field, "/a b/"); }, "/a b/\n", Key::extfs, "/a b/"},
    {[](C& c) { hand.type(c.network.modemPort.box, "cu"); }, "cu\n", Key::seriala, "cu"},
    {[](C& c) { hand.type(c.network.printerPort.box, "lp"); }, "Optional(\"lp\")\nlp\n", Key::serialb, "lp"},
    {[](C& c) { hand.choose(c.network.printerPort.box, 0); }, "Optional(\"lp\")\nlp\n", Key::serialb, "lp"},
    {[](C& c) { click(c.network.tunnelUDP.box, State::on); }, "1\n", Key::udptunnel, "true"},
    {[](C& c) { click(c.network.tunnelUDP.box, State::mixed); }, "", Key::udptunnel, "true"},
    {[](C& c) { click(c.network.tunnelUDP.box, State::off); }, "0\n", Key::udptunnel, "false"},
    {[](C& c) { hand.step(c.network.portUDP.stepper, 1); }, "6067\nUDP: 6067\n", Key::udpport, "6067"},
    {[](C& c) { click(c.machine.stateCDROM.box, State::on); }, "1\non\n", Key::nocdrom, "true"},
    {[](C& c) { hand.choose(c.machine.stateStart.button, 1); }, "1\n", Key::bootdrive, "1"},
    {[](C& c) { hand.choose(c.machine.modelID.button, 1); }, "1\n", Key::modelid, "14"},
    {[](C& c) { hand.choose(c.machine.cpuType.button, 3); }, "3\n3\ntrue\n", Key::fpu, "true"},
    {[](C& c) { hand.type(c.machine.ramSizeMB.box, "48"); }, "50331648\n1048576\nOptional(48)\n50331648\n", Key::ramsize, "50331648"},
    {[](C& c) { hand.choose(c.machine.ramSizeMB.box, 0); }, "1048576\nOptional(1024)\n1073741824\n", Key::ramsize, "1073741824"},
    {[](C& c) { hand.type(c.machine.ramSizeMB.box, "1.5"); }, "1048576\nOptional(1024)\n1073741824\n", Key::ramsize, "1073741824"},
    {[](C& c) { hand.choose(c.machine.ramSizeMB.box, 10); }, "1048576\nnil\n1610612737\n", Key::ramsize, "1610612737"},
    {[](C& c) { hand.choose(c.display.screen.screenType, 1); }, "1\ndga\n", Key::screen, "dga/1280/768"},
    {[](C& c) { hand.choose(c.display.screen.screenWidth, 4); }, "0\n", Key::screen, "dga/0/768"},
    {[](C& c) { hand.type(c.display.screen.screenWidth, "1152"); }, "1152\n", Key::screen, "dga/1152/768"},
    {[](C& c) { hand.choose(c.display.screen.screenHeight, 3); }, "384\n", Key::screen, "dga/1152/384"},
    {[](C& c) { hand.type(c.display.screen.screenHeight, "Maximum"); }, "Maximum\n", Key::screen, "dga/1152/0"},
    {[](C& c) { hand.choose(c.display.screen.screenWidth, 6); }, "1152\n", Key::screen, "dga/1152/0"},
    {[](C& c) { click(c.input.rawKeys.box, State::on); }, "1\n", Key::keycodes, "true"},
    {[](C& c) { hand.step(c.input.mouseScroll.stepper, 2); }, "5\nscrollLvl: 5\n", Key::mousewheellines, "5"},
    {[](C& c) { click(c.jit.enableJIT.box, State::on); }, "true\n", Key::jit, "true"},
    {[](C& c) { click(c.jit.compileFPU.box, State::mixed); }, "true\n", Key::jitfpu, "true"},
    {[](C& c) { click(c.jit.dontUseCPU.box, State::off); }, "0\n", Key::idlewait, "false"},
    {[](C& c) { hand.choose(c.jit.jitCache.box, 0); }, "2048\n", Key::jitcachesize, "2048"},
    {[](C& c) { hand.type(c.jit.jitCache.box, "abc"); }, "abc\n", Key::jitcachesize, "abc"},
    {[](C& c) { hand.type(c.jit.jitCache.box, "4096"); }, "4096\n", Key::jitcachesize, "4096"},
    {[](C& c) { hand.choose(c.jit.jitCache.box, 4); }, "abc\n", Key::jitcachesize, "abc"}};
// clang-format on

TEST(Editing, IsToldAndSaved) {
  OpenWindow window("screen win/1280/768\nramsize 1610612737\n");
  C& c = window.controller;
  for (std::size_t i = 0; i < edits.size(); ++i) {
    SCOPED_TRACE("edit " + std::to_string(i) + " of " + outletOf(edits[i].key));
    window.host.said();
    edits[i].edit(c);
    EXPECT_EQ(window.host.said(), edits[i].said);
    const std::string line = document::Preferences::line(edits[i].key, edits[i].value);
    EXPECT_NE(("\n" + window.saved()).find("\n" + line + "\n"), std::string::npos);
  }
  EXPECT_EQ(platform::listText(c.jit.jitCache.box.items()),
            R"(["2048", "4096", "8192", "16384", "abc", "4096"])");
  EXPECT_EQ(platform::listText(c.network.modemPort.box.items()), R"(["cu"])");
  EXPECT_EQ(c.network.portUDP.field.stringValue() + c.input.mouseScroll.field.stringValue(),
            "60675");
  for (const State state : {State::mixed, State::off}) {
    EXPECT_TRUE(c.input.rawKeyFile.field.isEnabled());
    click(c.input.rawKeys.box, state);
  }
  EXPECT_FALSE(c.input.rawKeyFile.field.isEnabled());
  for (platform::Button& preset : c.presets.presetsMenu) {
    for (const bool on : {true, false, true}) {
      preset.sendAction();
      EXPECT_EQ(preset.isOn(), on);
    }
  }
}

TEST(Editing, Choosers) {
  OpenWindow window(defaultFile());
  auto& [host, c] = window;
  const platform::OpenPanel& panel = host.panels.open;
  const std::string path = host.home.path("a b \u00fc%20");
  const std::tuple<platform::Button*, TextFieldSetting*, std::string, std::string> cases[] = {
      {&c.sharedFolder.unixRoot, &c.sharedFolder.unixRootPath, "extfs ",
       "modal Choose Unix Root Folder"},
      {&c.machine.browseROM.button, &c.machine.romFile, "", "panel "},
      {&c.input.rawKeyFileSelect.button, &c.input.rawKeyFile, "", "panel "}};
  for (const auto& [button, setting, label, shown] : cases) {
    host.said();
    button->sendAction();
    EXPECT_EQ(host.said() + panel.directory, "") << "cancelled";
    host.panels.answers = {{platform::Location::fromPath(path)}};
    button->sendAction();
    EXPECT_EQ(setting->field.stringValue(), path);
    EXPECT_EQ(c.preferences.value(setting->key()), path);
    EXPECT_EQ(host.said(), label + path + "\n");
    button->sendAction();
    EXPECT_EQ(panel.directory, host.home.path());
    EXPECT_EQ(host.panels.shown, shown);
    EXPECT_EQ(panel.canChooseDirectories && panel.canCreateDirectories, !label.empty());
    EXPECT_EQ(panel.canChooseFiles, label.empty());
  }
}

TEST(ViewController, SavesAndStarts) {
  OpenWindow window("# mine\ncpu 4\ndisk /no where\nunknown 1\ncpu 2\nseriala\nmixer \n");
  auto& [host, controller] = window;
  const std::string prefs = host.home.path(host.prefs);
  const std::string text = "disk /no where\n" + fileWith(Key::cpu, "4");
  EXPECT_TRUE(host.home.read(host.prefs).starts_with("# mine"));
  for (const bool saves : {true, false}) {
    for (const bool quits : {false, true}) {
      app::sharedVar::quitGUI = quits;
      host.workspace.starts = !host.workspace.starts;
      const auto expectSaved = [&](const std::string& message, const std::string& done) {
        EXPECT_EQ(host.said(),
                  "<first responder filename_field>\nwin\n1024\n768\n/no where\n"
                  "pre write prefs test\nnewFileOutput test: Optional(file://" +
                      prefs + "_debug)\n" + text + "\n" +
                      (saves ? "" : "couldn't save prefs file\n") + message +
                      platform::listText(controller.preferences.preferences) + "\n" + done);
      };
      host.said();
      controller.savePrefs.sendAction();
      expectSaved("post write prefs test\n", "");
      EXPECT_EQ(host.home.read(host.prefs), saves ? text : "");
      controller.startQuil.sendAction();
      expectSaved("post write prefs\n", "<launch " + host.home.path() + "//Quillon.app>\n" +
                                            (quits ? "<terminate>\n" : ""));
      const auto [saved, launched] = controller.saveAndLaunch();
      EXPECT_EQ(saved, saves);
      EXPECT_EQ(launched, host.workspace.starts);
    }
    std::filesystem::remove(prefs);
    std::filesystem::create_directory(prefs);
  }
  EXPECT_FALSE(controller.filename_field.isEnabled() || std::filesystem::exists(prefs + "_debug"));
}

}  // namespace
}  // namespace editor
