#include "platform/location.h"

#include <gtest/gtest.h>

namespace platform {

TEST(Location, KeepsEveryPath) {
  struct {
    std::string path, text;
  } const cases[] = {{"/My Disks/100%/a#b?c", "file:///My%20Disks/100%25/a%23b%3Fc"},
                     {"/caf\u00e9\n\"", "file:///caf%C3%A9%0A%22"},
                     {"/\xff\x01", "file:///%FF%01"},
                     {"/a%20b", "file:///a%2520b"},
                     {"/", "file:///"},
                     {"//server/a", "file:////server/a"},
                     {"./a/../b;c 1", "./a/../b;c%201"},
                     {"file:b/c:d", "file%3Ab/c:d"},
                     {"", ""}};
  for (const auto& [path, text] : cases) {
    const Location location = Location::fromPath(path);
    EXPECT_EQ(location.text(), text);
    EXPECT_EQ(location.path(), path);
    EXPECT_EQ(location.isFile(), path.starts_with('/')) << path;
  }
}

TEST(Location, ReadsTexts) {
  struct {
    std::string text;
    bool isFile;
    std::string path;
  } const cases[] = {{"file:///a%20b/%41", true, "/a b/A"},
                     {"file:/a/", true, "/a"},
                     {"file://localhost/a", true, "/a"},
                     {"/a#b?c", true, "/a#b?c"},
                     {"file://server/a", false, "/a"},
                     {"file://localhost", false, ""},
                     {"http://server/a", false, "/a"},
                     {"//server/a", false, "/a"},
                     {"file:a", false, "a"},
                     {"a/b", false, "a/b"}};
  for (const auto& [text, isFile, path] : cases) {
    const auto location = Location::fromText(text);
    ASSERT_EQ(optionalText(location), "Optional(" + text + ")");
    EXPECT_EQ(location->isFile(), isFile) << text;
    EXPECT_EQ(location->path(), path) << text;
  }
  for (const auto* invalid : {"", "file:///a b", "/caf\u00e9", "/a\n", "/50%", "/%4", "/%zz",
                              "/a\"", "/a\\b", "/a\x7f"}) {
    EXPECT_EQ(optionalText(Location::fromText(invalid)), "nil") << invalid;
  }
  EXPECT_EQ(percentDecoded("%41%zz%4%"), "A%zz%4%");
}

}  // namespace platform
