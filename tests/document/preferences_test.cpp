#include "document/preferences.h"

#include <gtest/gtest.h>

#include "tests/support/data.h"
#include "tests/support/temporary_folder.h"

namespace document {
namespace {

namespace fs = std::filesystem;

constexpr const char* fileName = ".quillon_prefs";

TEST(Preferences, SavesAndCopiesToWhatIsAValidLocation) {
  const tests::TemporaryFolder home;
  home.write("a b/x", "");
  home.write(fileName, "cpu 4\n");
  platform::BufferOutput output;
  Preferences preferences(home.path(), output);
  preferences.load();
  const auto copied = [&] {
    output.text.clear();
    preferences.copyToLocation();
    return output.text;
  };
  const std::string line = "file://" + home.path() + "/" + fileName + "\n";
  for (const tests::Case& each : tests::cases("places.txt", {"place", "file"}, home.path())) {
    SCOPED_TRACE(each.written);
    preferences.setLocation(each["place"]);
    EXPECT_EQ(copied(), line + (each.has("file") ? "" : "Problem: Invalid argument\n"));
    EXPECT_EQ(home.read(each["file"]), each.has("file") ? "cpu 4\n" : "");
    EXPECT_EQ(preferences.save({}, ""), each.has("file"));
    if (each.has("file")) {
      EXPECT_TRUE(home.read(each["file"]).starts_with("extfs "));
      EXPECT_EQ(copied(), line + "Problem: File exists\n");
      fs::remove(home.path(each["file"]));
    }
  }
  EXPECT_EQ(home.read(fileName), "cpu 4\n") << "the file in the home folder is left alone";
}

}  // namespace
}  // namespace document
