#include "document/preferences.h"

#include <gtest/gtest.h>

#include "tests/support/data.h"
#include "tests/support/model.h"
#include "tests/support/temporary_folder.h"

namespace document {
namespace {

namespace fs = std::filesystem;

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
  for (const tests::Case& each : tests::cases("lookups.txt", {"file", "key", "value"})) {
    const Key key = tests::keyOf(each["key"] + " ");
    preferences.settings = Lines(tests::replaced(each["file"], "{many lines}", manyLines));
    preferences.lookUp(key);
    EXPECT_EQ(preferences.value(key), each["value"]) << each.written;
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
  home.write("a b/x", "");
  home.write(fileName, "cpu 4\n");
  preferences.load();
  const auto copied = [&] {
    said();
    preferences.copyToLocation();
    return said();
  };
  const std::string line = "file://" + home.path() + "/" + fileName + "\n";
  for (const tests::Case& each : tests::cases("places.txt", {"place", "file"}, home.path())) {
    SCOPED_TRACE(each.written);
    preferences.setLocation(each["place"]);
    if (!each.has("file")) {
      EXPECT_EQ(copied(), line + "Problem: Invalid argument\n");
      EXPECT_FALSE(preferences.save({}, ""));
    } else {
      EXPECT_EQ(copied(), line);
      EXPECT_EQ(home.read(each["file"]), "cpu 4\n");
      EXPECT_TRUE(preferences.save({}, ""));
      EXPECT_TRUE(home.read(each["file"]).starts_with("extfs "));
      EXPECT_EQ(copied(), line + "Problem: File exists\n");
      fs::remove(home.path(each["file"]));
    }
  }
  EXPECT_EQ(home.read(fileName), "cpu 4\n") << "the file in the home folder is left alone";
}

}  // namespace
}  // namespace document
