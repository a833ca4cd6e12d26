#include "document/preferences.h"

#include <gtest/gtest.h>

#include "tests/support/model.h"
#include "tests/support/temporary_folder.h"

namespace document {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

constexpr const char* fileName = ".quillon_prefs";

struct PreferencesTest : testing::Test {
  tests::TemporaryFolder home;
  platform::BufferOutput output;
  Preferences preferences{home.path(), output};

  std::string said() { return std::exchange(output.text, {}); }
};

TEST_F(PreferencesTest, FindsTheFirstLineThatHoldsTheKey) {
  std::string manyLines;
  while (manyLines.size() < 1 << 20) {
    manyLines += "nothing of ours\n";
  }
  struct Row {
    std::string file;
    Key key;
    std::string value;
  };
  // What a person sees as one character is cut off as one.
  const std::vector<Row> rows = {
      {.file = "CPU 4\n", .key = Key::cpu, .value = "3"},
      {.file = "bootdriver 7\nbootdrive 1", .key = Key::bootdrive, .value = "1"},
      {.file = "udpport \nudpport 7\n", .key = Key::udpport, .value = "6066"},
      {.file = "cpu 4\r\r\n", .key = Key::cpu, .value = "4\r"},
      {.file = "udpport \r\n", .key = Key::udpport, .value = "6066"},
      {.file = "cpu 4\0x\n"s, .key = Key::cpu, .value = "4\0x"s},
      {.file = "e\u0301 cpu 4\n", .key = Key::cpu, .value = "u 4"},
      {.file = "cpu \u0301\n", .key = Key::cpu, .value = "3"},
      {.file = manyLines + "jitfpu 1\nfpu 2", .key = Key::fpu, .value = "pu 1"}};
  for (const auto& [file, key, value] : rows) {
    SCOPED_TRACE(file.substr(0, 40));
    preferences.settings = Lines(file);
    preferences.lookUp(key);
    EXPECT_EQ(preferences.value(key), value);
  }
}

TEST_F(PreferencesTest, MakesTheFirstFileInAHomeThatIsNoUrl) {
  const std::string name = "\u00d6l 9%20?#";
  fs::create_directory(home.path(name));
  Preferences opened(home.path(name), output);
  opened.load();
  EXPECT_EQ(home.read(name + "/" + fileName), tests::Model("").text());
  EXPECT_NE(said().find("file://" + home.path() + "/%C3%96l%209%2520%3F%23/" + fileName),
            std::string::npos);
  opened.lookUp(Key::cpu);
  EXPECT_EQ(said(), "No match for: cpu \n") << "the new file is not read back";
}

TEST_F(PreferencesTest, SavesAndCopiesToWhatIsAValidLocation) {
  struct Row {
    std::string location;
    std::string target = {};  // below the home folder; empty: nothing is written
  };
  const std::string path = home.path();
  const std::vector<Row> rows = {
      {.location = path + "/other/", .target = "other"},
      {.location = path + "/a%20b/p", .target = "a b/p"},
      {.location = "file://localhost" + path + "/other", .target = "other"},
      {.location = "file:" + path + "/a#b?", .target = "a#b?"},
      {.location = "file://" + path + "/a%20b/%C3%BC", .target = "a b/\u00fc"},
      {.location = path + "/a b/p"},
      {.location = path + "/p\t"},
      {.location = path + "/p%2g"},
      {.location = "file://elsewhere" + path + "/p"},
      {.location = "//elsewhere" + path + "/p"},
      {.location = "http:" + path + "/p"},
      {.location = "p"},
      {.location = ""}};
  home.write("a b/x", "");
  home.write(fileName, "cpu 4\n");
  preferences.load();
  const auto copied = [&] {
    said();
    preferences.copyToLocation();
    return said();
  };
  const std::string line = "file://" + path + "/" + fileName + "\n";
  const std::string refused = line + "Problem: Invalid argument\n";
  for (const auto& [location, target] : rows) {
    SCOPED_TRACE(location);
    preferences.setLocation(location);
    if (target.empty()) {
      EXPECT_EQ(copied(), refused);
      EXPECT_FALSE(preferences.save({}, ""));
    } else {
      EXPECT_EQ(copied(), line);
      EXPECT_EQ(home.read(target), "cpu 4\n");
      EXPECT_TRUE(preferences.save({}, ""));
      EXPECT_TRUE(home.read(target).starts_with("extfs "));
      EXPECT_EQ(copied(), line + "Problem: File exists\n");
      fs::remove(home.path(target));
    }
  }
  EXPECT_EQ(home.read(fileName), "cpu 4\n") << "the file in the home folder is left alone";
}

}  // namespace
}  // namespace document
