#include "platform/property_list.h"

#include <gtest/gtest.h>
#include <plist/plist.h>

#include "tests/support/temporary_folder.h"

namespace platform {
namespace {

constexpr std::string_view everyType =
    "<plist><dict><key>text</key><string>a &amp; \u00e9</string><key>yes</key><true/>"
    "<key>count</key><integer>7</integer><key>below</key><integer>-5</integer>"
    "<key>real</key><real>1.5</real><key>date</key><date>2020-01-02T03:04:05Z</date>"
    "<key>data</key><data>AAEC</data><key>list</key><array><string>in</string><false/></array>"
    "<key>inner</key><dict><key>k</key><string>v</string></dict></dict></plist>";

std::string binary(std::string_view xml) {
  plist_t root = nullptr;
  char* bytes = nullptr;
  std::uint32_t size = 0;
  plist_from_xml(xml.data(), static_cast<std::uint32_t>(xml.size()), &root);
  plist_to_bin(root, &bytes, &size);
  std::string result(bytes, size);
  plist_to_bin_free(bytes);
  plist_free(root);
  return result;
}

struct PropertyListTest : ::testing::Test {
  std::optional<PropertyList> read(const std::string& content) {
    return PropertyList::read(folder.write("list", content), error);
  }
  tests::TemporaryFolder folder;
  std::error_code error;
};

TEST_F(PropertyListTest, CarriesEveryTypeAlong) {
  for (const std::string& content : {std::string(everyType), binary(everyType)}) {
    auto list = read(content);
    ASSERT_TRUE(list) << error.message();
    list->set("text", std::string("<new>"));
    list->set("yes", false);
    list->set("count", std::int64_t{8});
    const std::string written = list->xml().value_or("");
    list = read(written);
    ASSERT_TRUE(list) << written;
    EXPECT_EQ(list->text("text"), "<new>");
    EXPECT_EQ(list->boolean("yes"), false);
    EXPECT_EQ(list->integer("count"), 8);
    EXPECT_EQ(list->integer("below"), -5);
    EXPECT_FALSE(list->text("count") || list->boolean("count") || list->integer("yes"));
    EXPECT_FALSE(list->text("none") || list->boolean("none") || list->integer("none"));
    for (const auto* kept : {"<real>1.5", "<date>2020-01-02T03:04:05Z", "AAEC", "<string>in",
                             "<key>k", "<string>v", "<integer>-5"}) {
      EXPECT_NE(written.find(kept), written.npos) << kept << " in " << written;
    }
  }
}

TEST_F(PropertyListTest, RefusesWhatItCannotUse) {
  std::string deep = "</dict></plist>";
  std::string open = "<plist><dict><key>a</key>";
  for (int depth = 0; depth < 4000; ++depth) {
    deep.insert(0, "</array>");
    open += "<array>";
  }
  for (const std::string& content :
       {std::string(), std::string("garbage"), std::string("bplist00"),
        std::string(everyType.substr(0, 200)), binary(everyType).substr(0, 100), open,
        std::string(everyType).append(65536, '\n'), std::string("<plist><array/></plist>")}) {
    EXPECT_FALSE(read(content)) << content.substr(0, 99);
    EXPECT_TRUE(error);
  }
  EXPECT_TRUE(read(open + deep)) << "depth alone is no fault";
  EXPECT_TRUE(read(binary(open + deep)));
}

}  // namespace
}  // namespace platform
