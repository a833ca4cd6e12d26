#include "volumes/volume_table.h"

#include <gtest/gtest.h>

#include "tests/support/fake_host.h"

namespace volumes {
namespace {

using platform::Location;
using Strings = std::vector<std::string>;

struct VolumeTableTest : ::testing::Test {
  tests::FakeHost host;
  VolumeTable table{host.output, host.panels};

  std::string cells(std::size_t row) {
    std::string all;
    for (const std::size_t column : {0U, 1U, 2U}) {
      const auto made = table.viewFor(column, row).value_or(platform::TableCell());
      all += made.identifier + "|" + made.text + "|" + made.image + "\n";
    }
    return all;
  }
};

TEST_F(VolumeTableTest, LoadsLinesAndTellsOfEachStep) {
  const std::string image = host.home.write("a 100%25.dsk", std::string(1474560, '\0'));
  const std::string encoded = host.home.path() + "/a%20100%2525.dsk";
  const std::string url = "file://" + encoded;
  const Strings lines = {"#disk /x", "disk " + image, "disk ", "disk no:where/\u00fc\r"};
  table.load({lines.begin(), lines.end()});
  EXPECT_EQ(host.said(),
            "resultsDisk: [\"#disk /x\", \"disk " + image + "\", \"disk \", \"" + lines[3] +
                "\"]\ndrop prefix: " + image + "\nFile acutal: " + image +
                "\npercent encoding: Optional(\"" + encoded + "\")\nescaped? " + url +
                "\nvolURL: Optional(" + url + ")\nFile exists\nVolume size: [1474560]\nvolUrl: " +
                url + "\nvolume Name: [" + url +
                "]\nVolume Size: [1474560]\nvolume Type: [\"Disk Image\"]\n"
                "drop prefix: \nFound disk entry with no file\n"
                "drop prefix: no:where/\u00fc\r\nFile acutal: no:where/\u00fc\r\npercent encoding: "
                "Optional(\"no:where/%C3%BC%0D\")\nvolURL local: no:where/\u00fc\r\n"
                "File doesn't exist\nVolume Not Found 3!\nvolUrl: no%3Awhere/%C3%BC%0D\n"
                "volume Name: [" +
                url +
                ", no%3Awhere/%C3%BC%0D]\nVolume Size: [1474560, 0]\n"
                "volume Type: [\"Disk Image\", \"Not Found!\"]\n");
  const std::string found =
      "NameCell|" + image + "|HappyMac.png\nSizeCell|1.5 MB|\nKindCell|Disk Image|\n";
  const std::string asked = "loCalmode volLocal\n" + url + "\n";
  EXPECT_EQ(cells(0), found);
  EXPECT_EQ(host.said(), asked + "url: " + url + "\ndisk table cell name: " + image + "\n" + asked +
                             asked + "Debug: text.path for volume type: " + image + "\n");
  EXPECT_TRUE(cells(1).ends_with("SizeCell|Zero KB|\nKindCell|No Path!|\n"));
  table.tableView.selectRows({1, 0});
  table.acceptDrop({"0"}, 2);
  EXPECT_EQ(cells(1), found);
  EXPECT_EQ(table.volumes().volType(), (Strings{"Not Found!", "Disk Image"}));
  EXPECT_EQ(table.tableView.selectedRow(), 1U) << "the selection goes along";
  EXPECT_EQ(table.validateDrop(platform::DropOperation::above), platform::DragOperation::move);
  EXPECT_EQ(table.validateDrop(platform::DropOperation::on), platform::DragOperation::none);
}

TEST_F(VolumeTableTest, Adds) {
  const auto at = [&](const char* name) { return Location::fromPath(host.home.path(name)); };
  host.home.write("A", "1");
  host.home.write("B", "12");
  host.panels.answers = {{at("A")}, {}, {at("B"), at("A"), at("gone")}};
  std::string expected = "[1]\nallfiles: (volName) counter: " + at("A").text() +
                         "\n[1, 2]\n[1, 2, 1]\nError: No such file or directory\n";
  for (const char* const name : {"A", "B", "A", "gone"}) {
    expected += "allfiles: (volName) counter: " + at(name).text() + "\n";
    table.browseFile.sendAction();
  }
  EXPECT_EQ(host.said(), expected);
  EXPECT_EQ(host.panels.shown, "sheet Select a volume");
  EXPECT_TRUE(host.panels.open.allowsMultipleSelection && host.panels.open.canChooseFiles);
  EXPECT_FALSE(host.panels.open.canChooseDirectories || host.panels.open.showsHiddenFiles);
  EXPECT_EQ(host.panels.open.allowedFileTypes.size(), 16U);
  EXPECT_EQ(table.volumes().volName(), (std::vector{at("A"), at("B"), at("A"), at("gone")}));
  EXPECT_EQ(table.volumes().volType(), Strings(4, "Disk Image"));
}

}  // namespace
}  // namespace volumes
