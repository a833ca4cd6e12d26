#include "checks/findings.h"

#include <gtest/gtest.h>

#include "checks/window_state.h"
#include "editor/view_controller.h"
#include "tests/support/data.h"
#include "tests/support/fake_host.h"

namespace checks {
namespace {

namespace fs = std::filesystem;
using document::Key;
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

/// A settings window over preferences, in a home folder with all that a start needs. The files in
/// it are named by paths from there.
struct OpenWindow {
  tests::FakeHost host;
  editor::ViewController controller{host.host()};

  explicit OpenWindow(const std::string& preferences) {
    const std::string program = host.home.write("Quillon.app/Contents/MacOS/Quillon", "");
    fs::permissions(program, fs::perms::owner_all);
    host.home.write("mac.rom", std::string(1 << 20, 'r'));
    host.home.write("odd.rom", std::string((1 << 20) + 1, 'r'));
    for (const char* const image : {"a.dsk", "b.dsk", "rom images/c.dsk"}) {
      host.home.write(image, "image");
    }
    host.home.write("empty.dsk", "");
    fs::create_symlink("a.dsk", host.home.path("link.dsk"));
    host.home.write(tests::FakeHost::prefs, preferences);
    controller.viewDidLoad();
  }

  Lines found() const {
    const State state = stateOf(controller);
    return linesOf(findings(state, gather(state)));
  }

  /// How many findings hold that part.
  std::ptrdiff_t count(const char* part) const {
    const Lines lines = found();
    return std::count_if(lines.begin(), lines.end(), [&](const std::string& line) {
      return line.find(part) != std::string::npos;
    });
  }
};

TEST(Findings, OfPreferencesAndFiles) {
  for (const tests::Case& each :
       tests::cases("findings-of-files.txt", {"alone", "line", "finds"})) {
    SCOPED_TRACE(each.written);
    const std::string others = each.has("alone") ? "" : "rom mac.rom\ndisk a.dsk";
    EXPECT_EQ(OpenWindow(each.lines("line") + others).found(), each.all("finds"));
  }
}

/// A file in the state that a word tells; without a word it is as it should be.
FileFact fileThatIs(const std::string& word) {
  using Kind = FileFact::Kind;
  return {.kind = word == "missing"        ? Kind::nothing
                  : word == "out of reach" ? Kind::unknown
                                           : Kind::file,
          .error = "Too many links",
          .stamp = {.size = 1 << 20, .modified = word == "changed" ? 1 : 0},
          .isReadable = word != "unreadable",
          .isWritable = word != "read-only"};
}

TEST(Findings, OfFacts) {
  for (const tests::Case& each :
       tests::cases("findings-of-facts.txt",
                    {"Start", "Quillon", "ROM", "disk", "preferences", "folder", "place of Quillon",
                     "place of the preferences", "read before", "save error", "finds"})) {
    SCOPED_TRACE(each.written);
    State state;
    for (const document::KeyRow& row : document::keyTable) {
      state.settings[indexOf(row.key)].value = row.defaultValue;
    }
    state.settings[indexOf(Key::rom)].value = "/r";
    state.disks = {"/d"};
    state.isStartEnabled = !each.has("Start");
    state.pathToQuil = each.has("place of Quillon") ? "" : "/q";
    state.preferences.saveError = each["save error"];
    if (!each.has("place of the preferences")) {
      state.preferences.path = "/p";
    }
    if (!each.has("read before")) {
      state.preferences.stamp = fileThatIs("").stamp;
    }
    const Facts facts{.quillon = fileThatIs(each["Quillon"]),
                      .hasProgram = each["Quillon"] != "without a program",
                      .rom = fileThatIs(each["ROM"]),
                      .disks = {fileThatIs(each["disk"])},
                      .preferences = fileThatIs(each["preferences"]),
                      .folderIsWritable = !each.has("folder")};
    EXPECT_EQ(linesOf(findings(state, facts)), each.all("finds"));
  }
}

TEST(Findings, OfTheFileGoWithAnEditAndWithASave) {
  OpenWindow window("my dsp x\nbootdrive -62\n");
  EXPECT_EQ(window.count("warning dsp"), 1);
  EXPECT_EQ(window.count("note bootdrive"), 1);
  platform::TextField& device = window.controller.input.audioOut.field;
  device.edit([&] { device.setStringValue("y"); });
  EXPECT_EQ(window.count("warning dsp"), 0);
  EXPECT_EQ(window.count("note bootdrive"), 1);
  window.host.home.write(tests::FakeHost::prefs, "rom \xff");
  EXPECT_EQ(window.count("changed by another program"), 1);
  window.controller.savePrefsAny();
  for (const char* const gone : {"warning dsp", "note bootdrive", "stops .quillon_prefs"}) {
    EXPECT_EQ(window.count(gone), 0) << gone;
  }
}

}  // namespace
}  // namespace checks
