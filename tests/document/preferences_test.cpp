#include "document/preferences.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <functional>
#include <sstream>
#include <system_error>

#include "tests/support/temporary_folder.h"

namespace document {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

constexpr const char* file = ".quillon_prefs";

// Written out once more, so that a slip in the key table is seen.
const std::string firstFile =
    "extfs Put an OS X path here to share it with Quillon\nscreen win/1024/768\nseriala \n"
    "serialb \nether slirp\nudptunnel false\nudpport 6066\nrom Put the path to your ROM file here\n"
    "bootdrive 0\nbootdriver 0\nramsize 67108864\nframeskip 0\nmodelid 5\ncpu 3\nfpu false\n"
    "nocdrom false\nnosound false\nnoclipconversion false\nnogui false\njit false\njitfpu false\n"
    "jitdebug false\njitcachesize 8192\njitlazyflush true\njitinline true\nkeyboardtype 5\n"
    "keycodes false\nkeycodefile \nmousewheelmode 1\nmousewheellines 3\ndsp \nmixer \n"
    "ignoresegv true\nidlewait true\n";

std::string reason(std::errc code) { return std::make_error_code(code).message(); }

bool contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

struct PreferencesTest : ::testing::Test {
  tests::TemporaryFolder home;
  platform::BufferOutput output;
  Preferences preferences{home.path(), output};

  static void lookUpAll(Preferences& opened) {
    for (const KeyRow& row : keyTable) {
      opened.lookUp(row.key);
    }
  }
  std::string said() { return std::exchange(output.text, {}); }
};

TEST_F(PreferencesTest, LookUp) {
  struct Case {
    std::string text;
    Key key;
    std::string value;
    std::string line;  // that was found; empty: none
  };
  std::string manyLines;
  for (int i = 0; i < 200'000; ++i) {
    manyLines += "nothing of ours\n";
  }
  const std::string longValue(1 << 20, 'x');
  const std::vector<Case> cases = {
      {"", Key::cpu, "3", ""},
      {"fpu true\njitfpu false\n", Key::fpu, "true", "fpu true"},
      {"jitfpu false\nfpu true\n", Key::fpu, "pu false", "jitfpu false"},
      {"screen dga/800/600\nscreen win/640/480", Key::screen, "dga/800/600", "screen dga/800/600"},
      {"  cpu 4\n", Key::cpu, "u 4", "  cpu 4"},
      {"udpport \nudpport 7\n", Key::udpport, "6066", "udpport "},
      {"nogui\n", Key::nogui, "false", ""},
      {"extfs /my rom store\nrom /x\n", Key::rom, "s /my rom store", "extfs /my rom store"},
      {"bootdriver 7\n", Key::bootdrive, "0", ""},
      {"\n\n\ncpu 4\n\n", Key::cpu, "4", "cpu 4"},
      {"cpu 4\r\nfpu true\r\n", Key::cpu, "4\r", "cpu 4\r"},
      {"cpu 4\0x\n"s, Key::cpu, "4\0x"s, "cpu 4\0x"s},
      // What a person sees as one character is cut off as one.
      {"e\u0301 cpu 4\n", Key::cpu, "u 4", "e\u0301 cpu 4"},
      {"\U0001F1E9\U0001F1EAcpu 4\n", Key::cpu, " 4", "\U0001F1E9\U0001F1EAcpu 4"},
      {"cpu \u03014\n", Key::cpu, "4", "cpu \u03014"},
      {"cpu \u0301\n", Key::cpu, "3", "cpu \u0301"},
      {"dsp " + longValue + "\n", Key::dsp, longValue, "dsp " + longValue},
      {manyLines + "cpu 4", Key::cpu, "4", "cpu 4"}};
  for (const Case& each : cases) {
    home.write(file, each.text);
    Preferences opened(home.path(), output);
    opened.load();
    said();
    opened.lookUp(each.key);
    const std::string keyText(prefs[indexOf(each.key)]);
    SCOPED_TRACE(each.text.substr(0, 40));
    EXPECT_TRUE(opened.value(each.key) == each.value);
    EXPECT_TRUE(opened.newPrefs[indexOf(each.key)] == keyText + each.value);
    EXPECT_TRUE(said() == (each.line.empty() ? "No match for: " + keyText + "\n"
                                             : "results: " + each.line + "\n"));
  }
}

TEST_F(PreferencesTest, FirstRunInAHomeThatIsNoUrl) {
  const std::string odd = home.path("\u00d6l 9%20?#");
  fs::create_directory(odd);
  Preferences opened(odd, output);
  opened.load();
  EXPECT_EQ(home.read("\u00d6l 9%20?#/.quillon_prefs"), firstFile);
  std::string list;
  std::string sizes;
  std::istringstream lines(firstFile);
  for (std::string line; std::getline(lines, line);) {
    list += (list.empty() ? "\"" : ", \"") + line + "\"";
    sizes += std::to_string(line.size()) + "\n";
  }
  EXPECT_EQ(said(), odd + "\n.quillon_prefs\nFailed reading from URL: file://" + home.path() +
                        "/%C3%96l%209%2520%3F%23/.quillon_prefs, Error: \n\n[" + list +
                        "]\nnewNoPrefs:\n Optional(\"seriala \")\n\n" + sizes);
  EXPECT_EQ(opened.prefsPath, "");
  lookUpAll(opened);
  const std::string messages = said();
  EXPECT_EQ(std::count(messages.begin(), messages.end(), '\n'), 34);
  EXPECT_FALSE(contains(messages, "results")) << "the new file is not read back";
  opened.setLocation(odd + "/" + file);  // no change
  EXPECT_TRUE(opened.save({"/x"}, ""));
  EXPECT_EQ(home.read("\u00d6l 9%20?#/.quillon_prefs"), "disk /x\n" + firstFile);
}

TEST_F(PreferencesTest, WhatCannotBeReadGivesDefaultsAndStays) {
  struct Case {
    std::function<void(const std::string&)> make;
    std::errc error;
    bool saves;
  };
  const std::vector<Case> cases = {
      {[](const auto& path) { fs::create_directory(path); }, std::errc::is_a_directory, false},
      {[](const auto& path) { ::mkfifo(path.c_str(), 0600); }, std::errc::operation_not_supported,
       false},
      {[](const auto& path) { fs::create_symlink("/dev/zero", path); },
       std::errc::operation_not_supported, false},
      {[this](const auto&) { home.write(file, "cpu 4\next \xff\n"); },
       std::errc::illegal_byte_sequence, true}};
  for (const Case& each : cases) {
    fs::remove_all(home.path(file));
    each.make(home.path(file));
    const std::string before = each.saves ? home.read(file) : "";
    Preferences opened(home.path(), output);
    opened.load();
    const std::string url = "file://" + home.path(file);
    EXPECT_EQ(said(), home.path() + "\n.quillon_prefs\n" + url + "\n" + home.path(file) +
                          "\nFailed reading from URL: " + url + ", Error: " + reason(each.error) +
                          "\n" + home.path(file) + "\n");
    opened.lookUp(Key::cpu);
    EXPECT_EQ(opened.value(Key::cpu), "3");
    EXPECT_EQ(each.saves ? home.read(file) : "", before);
    EXPECT_EQ(opened.save({}, ""), each.saves);
    EXPECT_EQ(contains(said(), "couldn't save prefs file"), !each.saves);
  }
}

TEST_F(PreferencesTest, SavesEverythingAnewAndSaysSo) {
  home.write(file, "# mine\ncpu 4\ndisk /a\nunknown 1\ncpu 2\nseriala\nmixer \n");
  preferences.load();
  lookUpAll(preferences);
  std::string expected = firstFile;
  expected.replace(expected.find("\ncpu 3"), 6, "\ncpu 4");
  EXPECT_TRUE(preferences.save({}, ""));
  EXPECT_EQ(home.read(file), expected);
  said();
  preferences.setValue(Key::idlewait, "");
  expected.replace(expected.find("idlewait true"), 13, "idlewait ");
  expected = "disk /a b\ndisk rel\n" + expected;
  EXPECT_TRUE(preferences.save({"/a b", "rel"}, "the end"));
  EXPECT_EQ(home.read(file), expected);
  const std::string messages =
      "/a b\nrel\npre write prefs test\nnewFileOutput test: Optional(file://" + home.path() +
      "/.quillon_prefs_debug)\n" + expected + "\n";
  EXPECT_TRUE(said().starts_with(messages + "the end\n[\"disk /a b\", \"disk rel\", \"extfs Put"));
  fs::remove(home.path(file));
  fs::create_directory(home.path(file));
  EXPECT_FALSE(preferences.save({"/a b", "rel"}, "the end"));
  EXPECT_TRUE(said().starts_with(messages + "couldn't save prefs file\nthe end\n[\"disk /a b\""));
  EXPECT_FALSE(fs::exists(home.path(".quillon_prefs_debug")));
}

TEST_F(PreferencesTest, Locations) {
  struct Case {
    std::string text;
    std::string target;  // empty: none
  };
  const std::string path = home.path();
  fs::create_directory(home.path("a b"));
  const std::vector<Case> cases = {{path + "/" + file, file},
                                   {path + "/other", "other"},
                                   {path + "/other/", "other"},
                                   {"file://" + path + "/other", "other"},
                                   {"file://localhost" + path + "/other", "other"},
                                   {"file://" + path + "/a%20b/%C3%BC", "a b/\u00fc"},
                                   {path + "/a%20b/p", "a b/p"},
                                   {path + "/a b/p", ""},
                                   {path + "/\u00fc", ""},
                                   {path + "/p%2", ""},
                                   {path + "/p\t", ""},
                                   {path + "/no/where", ""},
                                   {"file://elsewhere" + path + "/p", ""},
                                   {"http:" + path + "/p", ""},
                                   {"p", ""},
                                   {"", ""}};
  for (const Case& each : cases) {
    SCOPED_TRACE(each.text);
    home.write(file, "cpu 4\n");
    Preferences opened(path, output);
    opened.load();
    opened.setLocation(each.text);
    opened.setValue(Key::cpu, "2");
    said();
    EXPECT_EQ(opened.save({}, ""), !each.target.empty());
    EXPECT_EQ(contains(said(), "couldn't save prefs file"), each.target.empty());
    if (!each.target.empty()) {
      EXPECT_TRUE(contains(home.read(each.target), "\ncpu 2\n"));
      fs::remove(home.path(each.target));
    }
    EXPECT_EQ(home.read(file), each.target == file ? "" : "cpu 4\n");
  }
}

TEST_F(PreferencesTest, CopiesTheFileInTheHomeFolder) {
  home.write(file, "as it is on disk");
  home.write("there", "old");
  preferences.load();
  const std::string url = "file://" + home.path(file) + "\n";
  const std::vector<std::pair<std::string, std::string>> cases = {
      {home.path(file), reason(std::errc::file_exists)},
      {home.path("there"), reason(std::errc::file_exists)},
      {home.path("no/where"), reason(std::errc::no_such_file_or_directory)},
      {"http://x/y", reason(std::errc::invalid_argument)},
      {"a b", reason(std::errc::invalid_argument)},
      {home.path("new"), ""}};
  for (const auto& [text, problem] : cases) {
    preferences.setLocation(text);
    said();
    preferences.copyToLocation();
    EXPECT_EQ(said(), url + (problem.empty() ? "" : "Problem: " + problem + "\n")) << text;
  }
  EXPECT_EQ(home.read("new"), "as it is on disk");
  EXPECT_EQ(home.read("there"), "old");
}

}  // namespace
}  // namespace document
