#include <gtest/gtest.h>

#include "tests/editor/window.h"

namespace editor {
namespace {

// A combo box as text[entry/entries], a text field as <text>.
std::string describe(const platform::Control& control) {
  if (const auto* box = dynamic_cast<const platform::ComboBox*>(&control)) {
    const auto index = box->indexOfSelectedItem();
    return box->stringValue() + "[" + (index ? std::to_string(*index) : "-") + "/" +
           std::to_string(box->items().size()) + "]";
  }
  if (const auto* field = dynamic_cast<const platform::TextField*>(&control)) {
    return "<" + field->stringValue() + ">" + (field->isEditable() ? "" : " fixed") +
           (field->isEnabled() ? "" : " disabled");
  }
  if (const auto* button = dynamic_cast<const platform::PopUpButton*>(&control)) {
    return button->items().at(button->indexOfSelectedItem().value());
  }
  if (const auto* stepper = dynamic_cast<const platform::Stepper*>(&control)) {
    return std::to_string(stepper->integerValue());
  }
  return dynamic_cast<const platform::Button&>(control).isOn() ? "on" : "off";
}

struct Row {
  Key key;
  std::vector<const platform::Control*> controls;
  std::string shown;   // for the default
  std::string before;  // diagnostics around the line that was found
  std::string after;
  std::vector<std::pair<std::string, std::string>> odd;  // other values, and how they are shown
  const char* found = "results: ";                       // none: "before" is everything
};

const std::string romDefault = "Put the path to your ROM file here";

// clang-format off
std::vector<Row> rowsOf(const ViewController& c) {
  return {
    {Key::extfs, {&c.sharedFolder.unixRootPath.field}, "<Put an OS X path here to share it with Quillon>", "extfs: extfs \n", "", {{"/a b/", "</a b/>"}}},
    {Key::screen, {&c.display.screen.screenType, &c.display.screen.screenWidth, &c.display.screen.screenHeight}, "Window 1024[0/5] 768[0/5]", "screen \n",
     "[\"screen win/1024/768\"]\nScreen: win\nScreen: 1024\nScreen: 768\n",
     {{"dga/800/600", "Full screen 800[1/5] 600[1/5]"}, {"x11/640/480", "Full screen 640[2/5] 480[2/5]"},
      {"win/0/0", "Window Maximum[4/5] Maximum[4/5]"}, {"win/1280/Maximum", "Window 1280[5/6] Maximum[4/5]"},
      {"win", "Window 1024[0/5] 768[0/5]"}, {"dga/640", "Full screen 640[2/5] 768[0/5]"},
      {"win/1/2/3", "Window 1[5/6] 2[5/6]"}, {"win//", "Window [5/6] [5/6]"}}},
    {Key::seriala, {&c.network.modemPort.box}, "[0/1]", "seriala \n", "", {{"/dev/ttyS0", "/dev/ttyS0[0/1]"}}},
    {Key::serialb, {&c.network.printerPort.box}, "[0/1]", "serialb \n", "", {{"|lpr", "|lpr[0/1]"}}},
    {Key::ether, {&c.network.etherPort.box}, "slirp[0/1]", "ether \n", "", {{"en0", "en0[0/1]"}}},
    {Key::udptunnel, {&c.network.tunnelUDP.box}, "off", "udptunnel \n", "udptunnel :Optional(\"false\")\n", {{"true", "on"}, {"yes", "on"}}},
    {Key::udpport, {&c.network.portUDP.field, &c.network.portUDP.stepper}, "<6066> fixed 6066", "udpport \n", "",
     {{"6067", "<6067> fixed 6067"}, {"0", "<0> fixed 1"}, {"65536", "<65536> fixed 65535"}, {"4294973363", "<4294973363> fixed 6066"}, {"x", "<x> fixed 6066"}}},
    {Key::rom, {&c.machine.romFile.field}, "<" + romDefault + ">",
     "Searching for match for: rom \nAll matches for -rom- : [\"rom " + romDefault + "\", \"nocdrom false\"]\nSetting for rom is: -rom " +
     romDefault + "-\nSetting has value: rom " + romDefault + "\nRom Final Setting: rom " + romDefault + "\n", "",
     {{"/x/Mac.rom", "</x/Mac.rom>"}}, nullptr},
    {Key::bootdrive, {&c.machine.stateStart.button}, "Any drive", "bootdrive: bootdrive \n", "", {{"1", "Drive 1"}, {"-62", "Drive 1"}, {"00", "Drive 1"}}},
    {Key::bootdriver, {}, "", "", "", {{"-62", ""}}},
    {Key::ramsize, {&c.machine.ramSizeMB.box}, "64[4/10]", "ramsize: ramsize \n", "",
     {{"50331648", "48[10/11]"}, {"1073741824", "1[10/11]"}, {"1610612736", "1.5[10/11]"}, {"67108865", "64[4/10]"}, {"+8388608", "8[7/10]"},
      {"0", "Zero[10/11]"}, {"lots", "lots[-/10]"}, {"99999999999999999999", "99999999999999999999[-/10]"}}},
    {Key::frameskip, {&c.display.refreshRate.button}, "Dynamic", "frameskip \n", "NEWFRESH!!  0\nREFRESH!!  0\nACTUAL!!!  0\n",
     {{"8", "7.5 Hz"}, {"12", "5 Hz"}, {"3", "3 (from the file)"}, {"-1", "-1 (from the file)"}, {"fast", "fast (from the file)"}}},
    {Key::modelid, {&c.machine.modelID.button}, "Macintosh IIci", "", "", {{"14", "Quadra 900"}, {"3", "Macintosh IIci"}}},
    {Key::cpu, {&c.machine.cpuType.button}, "68030", "", "3\n", {{"2", "68020"}, {"4", "68020"}, {"x", "68020"}}},
    {Key::fpu, {&c.machine.cpuType.button}, "68030", "", "", {{"true", "68030 with FPU"}, {"yes", "68020"}}},
    {Key::nocdrom, {&c.machine.stateCDROM.box}, "off", "", "nocdrom: Optional(\"false\")\n", {{"true", "on"}, {"1", "on"}}},
    {Key::nosound, {&c.input.disableSound.box}, "off", "", "noaudio :false\n", {{"true", "on"}, {"1", "on"}}},
    {Key::noclipconversion, {}, "", "", "", {{"true", ""}}, "results1c-checkA: "},
    {Key::nogui, {}, "", "", "", {{"perhaps", ""}}},
    {Key::jit, {&c.jit.enableJIT.box}, "off", "", "", {{"true", "on"}, {"no", "on"}}},
    {Key::jitfpu, {&c.jit.compileFPU.box}, "off", "", "", {{"true", "on"}, {"False", "on"}}},
    {Key::jitdebug, {}, "", "", "", {{"true", ""}}},
    {Key::jitcachesize, {&c.jit.jitCache.box}, "8192[2/4]", "jitcachesize \n", "", {{"2048", "2048[0/4]"}, {"1024", "1024[4/5]"}, {"big", "big[4/5]"}}},
    {Key::jitlazyflush, {&c.jit.lazyFlush.box}, "on", "", "", {{"false", "off"}, {"no", "on"}}},
    {Key::jitinline, {&c.jit.inlineBlocks.box}, "on", "", "", {{"false", "off"}, {"no", "on"}}},
    {Key::keyboardtype, {}, "", "", "keyboardtype 5\n", {{"2", ""}}},
    {Key::keycodes, {&c.input.rawKeys.box, &c.input.rawKeyFile.field}, "off <> disabled", "keycodes \n", "results9: keycodes false\n", {{"true", "on <>"}, {"yes", "off <>"}}},
    {Key::keycodefile, {&c.input.rawKeyFile.field}, "<> disabled", "keycodefile \n", "results10: [\"keycodefile \"]\n", {{"/k c", "</k c> disabled"}}},
    {Key::mousewheelmode, {&c.input.mouseWheel.button}, "Cursor up / down", "mousewheelmode \n", "", {{"0", "Page up / page down"}, {"2", "Page up / page down"}}},
    {Key::mousewheellines, {&c.input.mouseScroll.field, &c.input.mouseScroll.stepper}, "<3> fixed 3", "29\n", "",
     {{"100", "<100> fixed 100"}, {"101", "<101> fixed 100"}, {"-1", "<-1> fixed 1"}, {"4294967298", "<4294967298> fixed 3"}, {"x", "<x> fixed 3"}}},
    {Key::dsp, {&c.input.audioOut.field}, "<>", "dsp \n", "", {{"/dev/dsp", "</dev/dsp>"}}},
    {Key::mixer, {&c.input.audioMix.field}, "<>", "mixer \n", "", {{"/dev/mixer", "</dev/mixer>"}}},
    {Key::ignoresegv, {&c.jit.ignoreSegV.box}, "on", "", "ignoresegv :true\n", {{"false", "off"}, {"no", "on"}}},
    {Key::idlewait, {&c.jit.dontUseCPU.box}, "on", "", "idle :true\n", {{"false", "off"}, {"no", "on"}}},
  };
}
// clang-format on

TEST(Filling, EveryKeyIsShownAndSaved) {
  const OpenWindow any(defaultFile());
  std::vector<Row> rows = rowsOf(any.controller);
  ASSERT_EQ(rows.size(), document::keyCount);
  for (std::size_t index = 0; index < rows.size(); ++index) {
    auto& [key, controls, byDefault, before, after, values, found] = rows[index];
    EXPECT_EQ(controls.empty() ? "" : controls.front()->name(), outletOf(key));
    values.emplace_back("", byDefault);
    values.emplace_back(document::rowOf(key).defaultValue, byDefault);
    for (const auto& [value, expected] : values) {
      SCOPED_TRACE(document::Preferences::line(key, value));
      OpenWindow window(fileWith(key, value));
      const Row row = rowsOf(window.controller)[index];
      std::string shown;
      for (const platform::Control* const control : row.controls) {
        shown += (shown.empty() ? "" : " ") + describe(*control);
      }
      EXPECT_EQ(shown, expected);
      EXPECT_EQ(window.saved(), fuzz::Model(fileWith(key, value)).text());
    }
  }
}

TEST(Filling, SaysEachStepInOrder) {
  OpenWindow window(defaultFile());
  const std::string home = window.host.home.path();
  const std::string path = home + "/.quillon_prefs\n";
  std::string expected = "local path is: " + home + "\nlocal path is enabled: " + home +
                         "//Quillon.app\nPrefs: \nQuilLocal?: " + home + "\n" + home +
                         "\n.quillon_prefs\nfile://" + path + path + path;
  for (const Row& row : rowsOf(window.controller)) {
    const std::string_view value = document::rowOf(row.key).defaultValue;
    expected += row.before;
    expected += row.found != nullptr
                    ? row.found + document::Preferences::line(row.key, value) + "\n" + row.after
                    : "";
  }
  EXPECT_EQ(window.host.said(), expected + "resultsDisk: []\n");
  EXPECT_EQ(window.controller.filename_field.stringValue() + "\n", path);
  EXPECT_TRUE(window.controller.machine.ramSizeMB.box.completes());
}

}  // namespace
}  // namespace editor
