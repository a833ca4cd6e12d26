#include "document/preferences.h"

#include <gtest/gtest.h>

#include "tests/support/temporary_folder.h"

namespace document {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

constexpr const char* file = ".quillon_prefs";

// Written out once more, so that a slip in the key table is seen.
const std::string firstFile =
    "extfs Put an OS X path here to share it with Quillon\nscreen "
    "win/1024/768\nseriala \n"
    "serialb \nether slirp\nudptunnel false\nudpport 6066\nrom Put the path to "
    "your ROM file here\n"
    "bootdrive 0\nbootdriver 0\nramsize 67108864\nframeskip 0\nmodelid 5\ncpu "
    "3\nfpu false\n"
    "nocdrom false\nnosound false\nnoclipconversion false\nnogui false\njit "
    "false\njitfpu false\n"
    "jitdebug false\njitcachesize 8192\njitlazyflush true\njitinline "
    "true\nkeyboardtype 5\n"
    "keycodes false\nkeycodefile \nmousewheelmode 1\nmousewheellines 3\ndsp "
    "\nmixer \n"
    "ignoresegv true\nidlewait true\n";

struct PreferencesTest : ::testing::Test {
  tests::TemporaryFolder home;
  platform::BufferOutput output;
  Preferences preferences{home.path(), output};

  std::string said() { return std::exchange(output.text, {}); }
};

TEST_F(PreferencesTest, LookUp) {
  std::string manyLines;
  while (manyLines.size() < 1 << 20) {
    manyLines += "nothing of ours\n";
  }
  const std::tuple<std::string, Key, std::string, std::string> cases[] = {
      // the file, the key, its value, what is said
      {"", Key::cpu, "3", "No match for: cpu "},
      {"nogui\n", Key::nogui, "false", "No match for: nogui "},
      {"jitfpu false\nfpu true\n", Key::fpu, "pu false", "results: jitfpu false"},
      {"screen a\nscreen b", Key::screen, "a", "results: screen a"},
      {"udpport \nudpport 7\n", Key::udpport, "6066", "results: udpport "},
      {"\n\ncpu 4\r\n\n", Key::cpu, "4\r", "results: cpu 4\r"},
      {"cpu 4\0x\n"s, Key::cpu, "4\0x"s, "results: cpu 4\0x"s},
      // What a person sees as one character is cut off as one.
      {"e\u0301 cpu 4\n", Key::cpu, "u 4", "results: e\u0301 cpu 4"},
      {"cpu \u0301\n", Key::cpu, "3", "results: cpu \u0301"},
      {manyLines + "jitfpu 1\nfpu 2", Key::fpu, "pu 1", "results: jitfpu 1"}};
  for (const auto& [text, key, value, line] : cases) {
    SCOPED_TRACE(text.substr(0, 40));
    preferences.settings = Lines(text);
    preferences.lookUp(key);
    EXPECT_EQ(preferences.value(key), value);
    EXPECT_EQ(said(), line + "\n");
  }
}

TEST_F(PreferencesTest, FirstRunInAHomeThatIsNoUrl) {
  const std::string odd = home.path("\u00d6l 9%20?#");
  fs::create_directory(odd);
  Preferences opened(odd, output);
  opened.load();
  EXPECT_EQ(home.read("\u00d6l 9%20?#/.quillon_prefs"), firstFile);
  std::string sizes;
  for (const std::string& line : opened.preferencesDefault) {
    sizes += std::to_string(line.size()) + "\n";
  }
  EXPECT_EQ(said(), odd + "\n.quillon_prefs\nFailed reading from URL: file://" + home.path() +
                        "/%C3%96l%209%2520%3F%23/.quillon_prefs, Error: \n\n" +
                        platform::listText(opened.preferencesDefault) +
                        "\nnewNoPrefs:\n Optional(\"seriala \")\n\n" + sizes);
  opened.lookUp(Key::cpu);
  EXPECT_EQ(said(), "No match for: cpu \n") << "the new file is not read back";
}

// Where a save and a copy of the file in the home folder go.
TEST_F(PreferencesTest, Locations) {
  const std::string path = home.path();
  const std::string url = "file://" + path + "/";
  std::vector<std::pair<std::string, std::string>> cases = {
      {path + "/other/", "other"},
      {"file://localhost" + path + "/other", "other"},
      {"file:" + path + "/a#b?", "a#b?"},
      {url + "a%20b/%C3%BC", "a b/\u00fc"}};
  for (const std::string& invalid :
       {path + "/a b/p", path + "/p\t", path + "/p%2g", "file://elsewhere" + path + "/p",
        "//elsewhere" + path + "/p", "http:" + path + "/p", std::string("p"), std::string()}) {
    cases.emplace_back(invalid, "none");
  }
  cases.emplace_back(path + "/a%20b/p", "a b/p");
  home.write("a b/x", "");
  home.write(file, "cpu 4\n");
  preferences.load();
  for (const auto& [text, target] : cases) {
    SCOPED_TRACE(text);
    const bool valid = target != "none";
    preferences.setLocation(text);
    said();
    preferences.copyToLocation();
    EXPECT_EQ(said(), url + file + (valid ? "\n" : "\nProblem: Invalid argument\n"));
    EXPECT_EQ(home.read(target), valid ? "cpu 4\n" : "");
    EXPECT_EQ(preferences.save({}, ""), valid);
    EXPECT_EQ(home.read(target).starts_with("extfs "), valid);
    said();
    preferences.copyToLocation();
    EXPECT_EQ(said(),
              url + file + "\nProblem: " + (valid ? "File exists\n" : "Invalid argument\n"));
    fs::remove(home.path(target));
  }
  EXPECT_EQ(home.read(file), "cpu 4\n");
}

}  // namespace
}  // namespace document
