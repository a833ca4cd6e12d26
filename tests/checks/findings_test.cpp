#include "checks/findings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "checks/window_state.h"
#include "editor/view_controller.h"
#include "tests/support/fake_host.h"

namespace checks {
namespace {

namespace fs = std::filesystem;
using document::Key;
using Kind = FileFact::Kind;
using Lines = std::vector<std::string>;

/// The findings as --check prints them, with blanks between the parts.
Lines linesOf(const std::vector<Finding>& found) {
  Lines lines;
  for (const Finding& finding : found) {
    lines.push_back(std::string(nameOf(finding.level)) + " " +
                    std::string(nameOf(finding.subject)) + " " + english(finding.text));
  }
  return lines;
}

/// A home folder with all that a start needs. Its files are named by paths from there.
struct Home {
  tests::FakeHost host;

  Home() {
    const std::string program = host.home.write("Quillon.app/Contents/MacOS/Quillon", "");
    fs::permissions(program, fs::perms::owner_all);
    host.home.write("mac.rom", std::string(1 << 20, 'r'));
    host.home.write("odd.rom", std::string((1 << 20) + 1, 'r'));
    for (const char* const image : {"a.dsk", "b.dsk", "rom images/c.dsk"}) {
      host.home.write(image, "image");
    }
    host.home.write("empty.dsk", "");
    fs::create_symlink("a.dsk", host.home.path("link.dsk"));
  }

  Lines checked(const std::string& preferences) {
    host.home.write(tests::FakeHost::prefs, preferences);
    editor::ViewController controller(host.host());
    controller.viewDidLoad();
    const State state = stateOf(controller);
    return linesOf(findings(state, gather(state)));
  }
};

TEST(Findings, OfPreferencesAndFiles) {
  struct Case {
    std::string line;  // of the preferences file
    Lines expected;
    bool withOthers = true;  // a ROM and a disk image
  };
  const Case cases[] = {
      {.line = "", .expected = {}},
      {.line = "",
       .expected = {"stops rom No ROM file is chosen.",
                    "warning disk There is no disk image in the list."},
       .withOthers = false},
      {.line = "rom no.rom", .expected = {"stops rom The ROM file \"no.rom\" is missing."}},
      {.line = "rom Quillon.app",
       .expected = {"stops rom The ROM file \"Quillon.app\" is a folder."}},
      {.line = "rom odd.rom",
       .expected = {"warning rom The ROM file \"odd.rom\" is 1048577 bytes large and most likely "
                    "no ROM: those are 64, 128, 256 or 512 KB, 1, 2 or 4 MB large."}},
      {.line = "disk no.dsk", .expected = {"warning disk The disk image \"no.dsk\" is missing."}},
      {.line = "disk no.dsk\ndisk nor.dsk\ndisk b.dsk",
       .expected = {"warning disk 2 of 4 disk images are missing: no.dsk, nor.dsk."}},
      {.line = "disk 1\ndisk 2\ndisk 3\ndisk 4",
       .expected = {"warning disk 4 of 5 disk images are missing: 1, 2, 3, …."}},
      {.line = "disk Quillon.app\ndisk empty.dsk",
       .expected = {"warning disk The disk image \"Quillon.app\" is a folder.",
                    "warning disk The disk image \"empty.dsk\" is empty."}},
      {.line = "disk link.dsk\ndisk no.dsk\ndisk no.dsk",
       .expected = {"warning disk 2 disk images are one and the same file, which two writers would "
                    "damage: link.dsk, a.dsk.",
                    "warning disk 2 of 4 disk images are missing: no.dsk, no.dsk."}},
      {.line = "extfs Quillon.app", .expected = {}},
      {.line = "extfs no", .expected = {"warning extfs The shared folder \"no\" is missing."}},
      {.line = "extfs a.dsk",
       .expected = {"warning extfs The shared folder \"a.dsk\" is no folder."}},
      {.line = "keycodefile no", .expected = {}},
      {.line = "keycodes true\nkeycodefile a.dsk", .expected = {}},
      {.line = "keycodes true",
       .expected = {"warning keycodefile Raw key codes are on, and no file is chosen for them."}},
      {.line = "keycodes true\nkeycodefile no",
       .expected = {"warning keycodefile Raw key codes are on, and their file \"no\" is missing."}},
      {.line = "cpu 4\nfpu true\nmodelid 14\nframeskip 8\njitcachesize 5\nudpport 1",
       .expected = {}},
      {.line = "cpu 9",
       .expected =
           {"note cpu \"cpu 9\" is nothing that this program knows. It shows \"68020\", and "
            "a save keeps the line as it is."}},
      {.line = "nosound perhaps",
       .expected = {"note nosound \"nosound perhaps\" is nothing that this program knows. It shows "
                    "\"on\", and a save keeps the line as it is."}},
      {.line = "bootdrive -62",
       .expected = {"note bootdrive \"bootdrive -62\" in the file is nothing that this program "
                    "knows. It shows \"Drive 1\", and a save writes \"bootdrive 1\"."}},
      {.line = "screen mac/800/600",
       .expected = {"note screen \"screen mac/800/600\" in the file is nothing that this program "
                    "knows. It shows \"Full screen, 800, 600\", and a save writes \"screen "
                    "dga/800/600\"."}},
      {.line = "udpport 0",
       .expected = {"note udpport \"udpport 0\" is nothing that this program knows. It shows "
                    "\"0\", and a save keeps the line as it is."}},
      {.line = "my dsp x",
       .expected = {"warning dsp The value \"sp x\" comes from a line that does not begin with "
                    "\"dsp\": \"my dsp x\"."}},
      {.line = "disk rom images/c.dsk\nrom mac.rom\ndisk a.dsk",
       .expected = {"stops rom The ROM file \" rom images/c.dsk\" is missing.",
                    "warning rom The value \" rom images/c.dsk\" comes from a line that does not "
                    "begin with \"rom\": \"disk rom images/c.dsk\".",
                    "warning rom After a save the value of \"rom\" would be read from another "
                    "line: \"disk rom images/c.dsk\"."},
       .withOthers = false},
      {.line = "rom mac.rom\ndisk rom images/c.dsk",
       .expected = {"warning rom After a save the value of \"rom\" would be read from another "
                    "line: \"disk rom images/c.dsk\"."},
       .withOthers = false},
  };
  Home home;
  for (const Case& checked : cases) {
    SCOPED_TRACE(checked.line);
    const std::string others = checked.withOthers ? "\nrom mac.rom\ndisk a.dsk" : "";
    EXPECT_EQ(home.checked(checked.line + others), checked.expected);
  }
}

// What no test brings about for the root user, or without other programs.
TEST(Findings, OfFacts) {
  struct Case {
    std::function<void(State&, Facts&)> change;
    Lines expected;
  };
  const std::string program = "stops Quillon.app Quillon is not at \"/q\": ";
  const std::string file = "stops .quillon_prefs The preferences file \"/p\" ";
  const Case cases[] = {
      {[](State&, Facts&) {}, {}},
      {[](State& state, Facts&) { state.isStartEnabled = false; },
       {"stops Quillon.app Start is disabled: choose where Quillon is in Edit > Preferences."}},
      {[](State& state, Facts&) { state.pathToQuil.clear(); },
       {"stops Quillon.app Quillon is set to be nowhere: choose where it is in Edit > "
        "Preferences."}},
      {[](State&, Facts& facts) { facts.quillon.kind = Kind::nothing; },
       {program + "nothing is there."}},
      {[](State&, Facts& facts) { facts.hasProgram = false; },
       {program + "what is there holds no program."}},
      {[](State&, Facts& facts) { facts.rom.isReadable = false; },
       {"stops rom There is no permission to read the ROM file \"/r\"."}},
      {[](State&, Facts& facts) {
         facts.rom.kind = Kind::unknown;
         facts.rom.error = "Too many links";
       },
       {"stops rom The ROM file \"/r\" cannot be reached: Too many links."}},
      {[](State&, Facts& facts) { facts.disks[0].isReadable = false; },
       {"warning disk There is no permission to read the disk image \"/d\"."}},
      {[](State&, Facts& facts) { facts.disks[0].isWritable = false; },
       {"note disk The disk image \"/d\" cannot be written to."}},
      {[](State&, Facts& facts) { facts.preferences.isWritable = false; },
       {file + "cannot be written: a save will fail."}},
      {[](State& state, Facts& facts) {
         facts.preferences.kind = Kind::nothing;
         state.preferences.stamp.reset();
       },
       {}},
      {[](State& state, Facts& facts) {
         facts.preferences.kind = Kind::nothing;
         facts.folderIsWritable = false;
         state.preferences.stamp.reset();
       },
       {file + "cannot be written: a save will fail."}},
      {[](State&, Facts& facts) { facts.preferences.stamp.modified += 1; },
       {file + "has been changed by another program. A save undoes that."}},
      {[](State&, Facts& facts) { facts.preferences.kind = Kind::nothing; },
       {file + "has been removed by another program. A save makes it anew."}},
      {[](State& state, Facts&) { state.preferences.path.reset(); },
       {"stops .quillon_prefs The place of the preferences file names no file: no save can "
        "succeed."}},
      {[](State& state, Facts&) { state.preferences.saveError = "No space left"; },
       {file + "could not be saved: No space left."}},
  };
  State state;
  for (const document::KeyRow& row : document::keyTable) {
    state.settings[indexOf(row.key)].value = row.defaultValue;
  }
  state.settings[indexOf(Key::rom)].value = "/r";
  state.disks = {"/d"};
  state.pathToQuil = "/q";
  const FileFact good{
      .kind = Kind::file, .stamp = {.size = 1 << 20}, .isReadable = true, .isWritable = true};
  state.preferences = {.path = "/p", .stamp = good.stamp};
  const Facts facts{.quillon = good,
                    .hasProgram = true,
                    .rom = good,
                    .disks = {good},
                    .preferences = good,
                    .folderIsWritable = true};
  for (const Case& checked : cases) {
    State changedState = state;
    Facts changedFacts = facts;
    checked.change(changedState, changedFacts);
    EXPECT_EQ(linesOf(findings(changedState, changedFacts)), checked.expected);
  }
}

/// A settings window over a preferences file of that text.
struct OpenWindow {
  tests::FakeHost host;
  editor::ViewController controller{host.host()};

  explicit OpenWindow(const std::string& preferences) {
    host.home.write(tests::FakeHost::prefs, preferences);
    controller.viewDidLoad();
  }

  /// The findings about a setting or a place.
  Lines about(Subject subject) const {
    const State state = stateOf(controller);
    std::vector<Finding> found = findings(state, gather(state));
    std::erase_if(found, [&](const Finding& finding) { return finding.subject != subject; });
    return linesOf(found);
  }
};

TEST(Findings, OfTheFilesTextGoWithAnEditAndWithASave) {
  OpenWindow window("my dsp x\nbootdrive -62\n");
  EXPECT_EQ(window.about(Key::dsp).size(), 1);
  EXPECT_EQ(window.about(Key::bootdrive).size(), 1);
  platform::TextField& device = window.controller.input.audioOut.field;
  device.edit([&] { device.setStringValue("y"); });
  EXPECT_EQ(window.about(Key::dsp), Lines());
  EXPECT_EQ(window.about(Key::bootdrive).size(), 1);
  window.controller.savePrefsAny();
  EXPECT_EQ(window.about(Key::dsp), Lines());
  EXPECT_EQ(window.about(Key::bootdrive), Lines());
}

TEST(Findings, OfThePreferencesFileGoWithASave) {
  OpenWindow window("rom \xff");
  const Subject file = Place::preferencesFile;
  ASSERT_EQ(window.about(file).size(), 1);
  EXPECT_NE(window.about(file)[0].find("could not be read"), std::string::npos);
  window.controller.savePrefsAny();
  EXPECT_EQ(window.about(file), Lines());
  window.host.home.write(tests::FakeHost::prefs, "cpu 4\n");
  ASSERT_EQ(window.about(file).size(), 1);
  EXPECT_NE(window.about(file)[0].find("changed by another program"), std::string::npos);
  window.controller.savePrefsAny();
  EXPECT_EQ(window.about(file), Lines());
}

}  // namespace
}  // namespace checks
