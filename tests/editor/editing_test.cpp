#include <gtest/gtest.h>

#include "tests/editor/window.h"

namespace editor {
namespace {

using platform::State;
using C = ViewController;

void type(platform::ComboBox& box, const char* text) {
  box.edit([&] { box.enterText(text); });
}
void type(platform::TextField& field, const char* text) {
  field.edit([&] { field.setStringValue(text); });
}
template <typename ListControl>
void choose(ListControl& control, std::size_t index) {
  control.edit([&] { control.selectItem(index); });
}
void click(platform::Button& button, State state) {
  button.edit([&] { button.setState(state); });
}
void step(platform::Stepper& stepper, int value) {
  stepper.edit([&] { stepper.setIntegerValue(value); });
}

struct Edit {
  void (*edit)(C&);
  std::string said;
  Key key;
  std::string value;
};

void run(OpenWindow& window, const std::vector<Edit>& edits) {
  for (std::size_t i = 0; i < edits.size(); ++i) {
    SCOPED_TRACE("edit " + std::to_string(i) + " of " + outletOf(edits[i].key));
    window.host.said();
    edits[i].edit(window.controller);
    EXPECT_EQ(window.host.said(), edits[i].said);
    EXPECT_EQ(window.controller.preferences.value(edits[i].key), edits[i].value);
  }
}

// clang-format off
TEST(Editing, TextsBoxesAndSteppers) {
  OpenWindow window(defaultFile());
  run(window, {
      {[](C& c) { type(c.sharedFolder.unixRootPath.field, "/a b/"); }, "/a b/\n", Key::extfs, "/a b/"},
      {[](C& c) { type(c.sharedFolder.unixRootPath.field, "/a b/"); }, "/a b/\n", Key::extfs, "/a b/"},
      {[](C& c) { type(c.network.modemPort.box, "cu"); }, "cu\n", Key::seriala, "cu"},
      {[](C& c) { type(c.network.printerPort.box, "lp"); }, "Optional(\"lp\")\nlp\n", Key::serialb, "lp"},
      {[](C& c) { choose(c.network.printerPort.box, 0); }, "Optional(\"lp\")\nlp\n", Key::serialb, "lp"},
      {[](C& c) { click(c.network.tunnelUDP.box, State::on); }, "1\n", Key::udptunnel, "true"},
      {[](C& c) { click(c.network.tunnelUDP.box, State::mixed); }, "", Key::udptunnel, "true"},
      {[](C& c) { click(c.network.tunnelUDP.box, State::off); }, "0\n", Key::udptunnel, "false"},
      {[](C& c) { step(c.network.portUDP.stepper, 6067); }, "6067\nUDP: 6067\n", Key::udpport, "6067"},
      {[](C& c) { click(c.machine.stateCDROM.box, State::on); }, "1\non\n", Key::nocdrom, "true"},
      {[](C& c) { click(c.machine.stateCDROM.box, State::mixed); }, "", Key::nocdrom, "true"},
      {[](C& c) { click(c.machine.stateCDROM.box, State::off); }, "0\noff\n", Key::nocdrom, "false"},
      {[](C& c) { click(c.input.rawKeys.box, State::on); }, "1\n", Key::keycodes, "true"},
      {[](C& c) { step(c.input.mouseScroll.stepper, 5); }, "5\nscrollLvl: 5\n", Key::mousewheellines, "5"},
      {[](C& c) { click(c.jit.enableJIT.box, State::on); }, "true\n", Key::jit, "true"},
      {[](C& c) { click(c.jit.compileFPU.box, State::mixed); }, "true\n", Key::jitfpu, "true"},
      {[](C& c) { click(c.jit.dontUseCPU.box, State::mixed); }, "", Key::idlewait, "true"},
      {[](C& c) { click(c.jit.dontUseCPU.box, State::off); }, "0\n", Key::idlewait, "false"},
      {[](C& c) { choose(c.jit.jitCache.box, 0); }, "2048\n", Key::jitcachesize, "2048"},
      {[](C& c) { type(c.jit.jitCache.box, "abc"); }, "abc\n", Key::jitcachesize, "abc"},
      {[](C& c) { type(c.jit.jitCache.box, "4096"); }, "4096\n", Key::jitcachesize, "4096"},
      {[](C& c) { choose(c.jit.jitCache.box, 4); }, "abc\n", Key::jitcachesize, "abc"}});
  const C& c = window.controller;
  EXPECT_EQ(c.network.modemPort.box.items(), std::vector<std::string>{"cu"});
  EXPECT_EQ(c.network.portUDP.field.stringValue(), "6067");
  EXPECT_EQ(c.input.mouseScroll.field.stringValue(), "5");
  EXPECT_EQ(c.jit.jitCache.box.items(), (std::vector<std::string>{"2048", "4096", "8192", "16384", "abc", "4096"}));
  EXPECT_TRUE(c.input.rawKeyFile.field.isEnabled());
  click(window.controller.input.rawKeys.box, State::mixed);
  EXPECT_TRUE(c.input.rawKeyFile.field.isEnabled());
  click(window.controller.input.rawKeys.box, State::off);
  EXPECT_FALSE(c.input.rawKeyFile.field.isEnabled());
}

// Each value is what a save writes: until then the parts stand apart.
TEST(Editing, ScreenParts) {
  OpenWindow window(fileWith(Key::screen, "win/1280/768"));
  const std::vector<Edit> edits = {
      {[](C& c) { choose(c.display.screen.screenType, 1); }, "1\ndga\n", Key::screen, "dga/1280/768"},
      {[](C& c) { choose(c.display.screen.screenWidth, 4); }, "0\n", Key::screen, "dga/0/768"},
      {[](C& c) { choose(c.display.screen.screenWidth, 5); }, "1280\n", Key::screen, "dga/1280/768"},
      {[](C& c) { type(c.display.screen.screenWidth, "1152"); }, "1152\n", Key::screen, "dga/1152/768"},
      {[](C& c) { choose(c.display.screen.screenHeight, 3); }, "384\n", Key::screen, "dga/1152/384"},
      {[](C& c) { type(c.display.screen.screenHeight, "Maximum"); }, "Maximum\n", Key::screen, "dga/1152/0"},
      {[](C& c) { choose(c.display.screen.screenWidth, 6); }, "1152\n", Key::screen, "dga/1152/0"},
      {[](C& c) { choose(c.display.screen.screenType, 0); }, "0\nwin\n", Key::screen, "win/1152/0"}};
  std::string former = "win/1280/768";
  for (const Edit& edit : edits) {
    run(window, {{edit.edit, edit.said, edit.key, former}});
    EXPECT_EQ(window.saved(), fileWith(Key::screen, edit.value));
    former = edit.value;
  }
  EXPECT_EQ(window.controller.display.screen.screenWidth.items(),
            (std::vector<std::string>{"1024", "800", "640", "512", "Maximum", "1280", "1152"}));
}

TEST(Editing, RamSize) {
  struct Size {
    const char* typed;
    std::string bytes;  // empty: not stored
  };
  OpenWindow window(defaultFile());
  const C& c = window.controller;
  run(window, {
      {[](C& w) { type(w.machine.ramSizeMB.box, "48"); }, "50331648\n1048576\nOptional(48)\n50331648\n", Key::ramsize, "50331648"},
      {[](C& w) { choose(w.machine.ramSizeMB.box, 0); }, "1048576\nOptional(1024)\n1073741824\n", Key::ramsize, "1073741824"},
      {[](C& w) { type(w.machine.ramSizeMB.box, "1.5"); }, "1048576\nOptional(1024)\n1073741824\n", Key::ramsize, "1073741824"}});
  const auto& box = c.machine.ramSizeMB.box;
  std::size_t entries = box.items().size();
  EXPECT_EQ(entries, 11U);
  for (const auto& [typed, bytes] : std::vector<Size>{
           {"", ""}, {"0", ""}, {"-1", ""}, {" 8", ""}, {"8 MB", ""}, {"8796093022208", ""}, {"99999999999999999999", ""},
           {"64", "67108864"}, {"1", "1048576"}, {"8796093022207", "9223372036853727232"}, {"x", ""}}) {
    const std::string stored = c.preferences.value(Key::ramsize);
    const std::string shown = box.stringValue();
    type(window.controller.machine.ramSizeMB.box, typed);
    EXPECT_EQ(c.preferences.value(Key::ramsize), bytes.empty() ? stored : bytes) << typed;
    EXPECT_EQ(box.stringValue(), bytes.empty() ? shown : typed);
    entries += bytes.empty() ? 0 : 1;
    EXPECT_EQ(box.items().size(), entries);
  }
  OpenWindow fraction(fileWith(Key::ramsize, "1610612737"));
  run(fraction, {
      {[](C& w) { choose(w.machine.ramSizeMB.box, 9); }, "1048576\nOptional(2)\n2097152\n", Key::ramsize, "2097152"},
      {[](C& w) { choose(w.machine.ramSizeMB.box, 10); }, "1048576\nnil\n1610612737\n", Key::ramsize, "1610612737"}});
  OpenWindow odd(fileWith(Key::ramsize, "lots"));
  run(odd, {{[](C& w) { type(w.machine.ramSizeMB.box, "x"); }, "1048576\nnil\nlots\n", Key::ramsize, "lots"}});
  EXPECT_EQ(odd.controller.machine.ramSizeMB.box.stringValue(), "lots");
}
// clang-format on

TEST(Editing, Choosers) {
  OpenWindow window(defaultFile());
  auto& [host, c] = window;
  const std::string path = host.home.path("a b \u00fc%20");
  const std::vector<std::tuple<platform::Button*, TextFieldSetting*, std::string>> cases = {
      {&c.sharedFolder.unixRoot, &c.sharedFolder.unixRootPath, "extfs "},
      {&c.machine.browseROM.button, &c.machine.romFile, ""},
      {&c.input.rawKeyFileSelect.button, &c.input.rawKeyFile, ""}};
  for (const auto& [button, setting, label] : cases) {
    const std::string before = setting->field.stringValue();
    host.said();
    button->sendAction();
    EXPECT_EQ(setting->field.stringValue() + host.said(), before) << "cancelled";
    const platform::OpenPanel& panel = host.panels.open;
    EXPECT_EQ(panel.directory, "");
    host.panels.answers = {{platform::Location::fromPath(path)}};
    button->sendAction();
    EXPECT_EQ(setting->field.stringValue(), path);
    EXPECT_EQ(c.preferences.value(setting->key()), path);
    EXPECT_EQ(host.said(), label + path + "\n");
    button->sendAction();
    EXPECT_EQ(panel.directory, host.home.path());
    const bool folders = !label.empty();
    EXPECT_EQ(host.panels.shown.back() + panel.title,
              folders ? "modalChoose Unix Root Folder" : "panel");
    EXPECT_EQ(panel.canChooseDirectories && panel.canCreateDirectories, folders);
    EXPECT_NE(panel.canChooseFiles, folders);
    EXPECT_FALSE(panel.showsHiddenFiles || panel.allowsMultipleSelection);
    EXPECT_TRUE(panel.allowedFileTypes.empty());
  }
}

TEST(Editing, PresetsAreCheckMarksOnly) {
  OpenWindow window(defaultFile());
  window.host.said();
  std::string titles;
  for (auto& item : window.controller.presets.presetsMenu) {
    titles += item.title() + "|";
    item.setState(State::mixed);
    for (const State after : {State::off, State::on, State::off, State::on}) {
      item.sendAction();
      EXPECT_EQ(item.state(), after);
    }
  }
  EXPECT_EQ(titles, "System 7.0.1|System 7.1|System 7.5.3|System 7.6.1|Mac OS 8.1|");
  EXPECT_EQ(window.host.said(), "");
  EXPECT_TRUE(window.controller.presets.presetsMenu[0].isOn()) << "independent of the others";
  EXPECT_EQ(window.saved(), defaultFile());
}

}  // namespace
}  // namespace editor
