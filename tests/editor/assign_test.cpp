#include <gtest/gtest.h>

#include <set>

#include "tests/support/edits.h"
#include "tests/support/fake_host.h"

namespace editor {
namespace {

struct Assign : testing::Test {
  Assign() { window.viewDidLoad(); }

  [[nodiscard]] std::string saved() {
    window.savePrefsAny();
    return host.home.read(tests::FakeHost::prefs);
  }

  [[nodiscard]] Setting& setting(Key key) {
    return *window.settingsInKeyOrder().at(document::indexOf(key));
  }

  [[nodiscard]] std::string shownBy(std::string_view control) {
    const platform::Control& shown = tests::settingControl(window, control);
    if (const auto* const field = dynamic_cast<const platform::TextField*>(&shown)) {
      return field->stringValue();
    }
    if (const auto* const button = dynamic_cast<const platform::PopUpButton*>(&shown)) {
      return button->items().at(button->indexOfSelectedItem().value());
    }
    return dynamic_cast<const platform::Button&>(shown).isOn() ? "on" : "off";
  }

  [[nodiscard]] std::string shownBy(Key key) {
    const std::string_view control = document::rowOf(key).control;
    return control.empty() ? setting(key).shownValue()
           : key == Key::screen
               ? shownBy(control) + ", " + shownBy("screenWidth") + " × " + shownBy("screenHeight")
               : shownBy(control);
  }

  tests::FakeHost host;
  ViewController window{host.host()};
};

struct Assignment {
  Key key;
  std::string value;
  std::string shown;
};

// In one window, one after the other: a control may not keep anything of the value before.
const std::vector<Assignment> assignments = {
    {Key::extfs, "/a b", "/a b"},
    {Key::screen, "dga/1280/0", "Full screen, 1280 × Maximum"},
    {Key::screen, "win/640/1100", "Window, 640 × 1100"},
    {Key::seriala, "/dev/cu", "/dev/cu"},
    {Key::serialb, "lp", "lp"},
    {Key::ether, "tap0", "tap0"},
    {Key::udptunnel, "yes", "on"},
    {Key::udpport, "70000", "70000"},
    {Key::udpport, "none", "none"},
    {Key::rom, "/x.rom", "/x.rom"},
    {Key::bootdrive, "1", "Drive 1"},
    {Key::bootdrive, "0", "Any drive"},
    {Key::bootdriver, "-33", "-33"},
    {Key::ramsize, "50331648", "48"},
    {Key::ramsize, "1073741824", "1024"},
    {Key::ramsize, "1610612737", "1.5"},
    {Key::ramsize, "much", "much"},
    {Key::frameskip, "3", "3 (from the file)"},
    {Key::frameskip, "8", "7.5 Hz"},
    {Key::frameskip, "fast", "fast (from the file)"},
    {Key::frameskip, "3", "3 (from the file)"},
    {Key::modelid, "14", "Quadra 900"},
    {Key::modelid, "3", "Macintosh IIci"},
    {Key::cpu, "2", "68020"},
    {Key::fpu, "false", "68020"},
    {Key::cpu, "3", "68030"},
    {Key::fpu, "true", "68030 with FPU"},
    {Key::cpu, "4", "68040"},
    {Key::nocdrom, "true", "on"},
    {Key::nosound, "true", "on"},
    {Key::noclipconversion, "true", "true"},
    {Key::nogui, "true", "true"},
    {Key::jit, "true", "on"},
    {Key::jitfpu, "true", "on"},
    {Key::jitdebug, "true", "true"},
    {Key::jitcachesize, "3000", "3000"},
    {Key::jitcachesize, "4096", "4096"},
    {Key::jitlazyflush, "false", "off"},
    {Key::jitinline, "false", "off"},
    {Key::keyboardtype, "2", "2"},
    {Key::keycodes, "true", "on"},
    {Key::keycodes, "perhaps", "off"},
    {Key::keycodefile, "/codes", "/codes"},
    {Key::mousewheelmode, "0", "Page up / page down"},
    {Key::mousewheellines, "7", "7"},
    {Key::dsp, "/dev/dsp", "/dev/dsp"},
    {Key::mixer, "/dev/mixer", "/dev/mixer"},
    {Key::ignoresegv, "false", "off"},
    {Key::idlewait, "false", "off"}};

TEST_F(Assign, StoresTheValueAndShowsIt) {
  tests::Model expected("");
  std::set<Key> assigned;
  for (const auto& [key, value, shown] : assignments) {
    SCOPED_TRACE(document::Preferences::line(key, value));
    setting(key).assign(value);
    EXPECT_EQ(shownBy(key), shown);
    EXPECT_EQ(setting(key).shownValue(), shown);
    expected[key] = value;
    EXPECT_EQ(saved(), expected.text());
    assigned.insert(key);
  }
  EXPECT_EQ(assigned.size(), document::keyCount) << "every setting has its turn";
  EXPECT_EQ(window.input.mouseScroll.stepper.integerValue(), 7);
  EXPECT_EQ(platform::listText(window.jit.jitCache.box.items()),
            R"(["2048", "4096", "8192", "16384", "3000"])");
  EXPECT_EQ(platform::listText(window.network.etherPort.box.items()), R"(["tap0"])");
}

TEST_F(Assign, OfOneKeyOfTheProcessorShowsThePair) {
  setting(Key::cpu).assign("4");
  EXPECT_EQ(setting(Key::cpu).shownValue(), "cpu 4, fpu false") << "no entry stands for it";
  setting(Key::fpu).assign("true");
  EXPECT_EQ(shownBy("cpuType"), "68040");
  EXPECT_EQ(setting(Key::cpu).shownValue(), "68040");
  setting(Key::fpu).reset();
  EXPECT_EQ(shownBy("cpuType"), "68030") << "both keys go back";
}

TEST_F(Assign, OfRawKeyCodesOpensTheFieldForTheirFile) {
  EXPECT_FALSE(window.input.rawKeyFile.field.isEnabled());
  setting(Key::keycodes).assign("true");
  EXPECT_TRUE(window.input.rawKeyFile.field.isEnabled());
  setting(Key::keycodes).reset();
  EXPECT_FALSE(window.input.rawKeyFile.field.isEnabled());
}

TEST_F(Assign, AKeyWithoutASettingOrWithTwoIsNamedAtOnce) {
  EXPECT_DEATH(settingsByKey({&window.jit}), "No setting for the key extfs");
  EXPECT_DEATH(settingsByKey({&window.jit, &window.jit}),
               "Two settings for the key noclipconversion");
}

}  // namespace
}  // namespace editor
