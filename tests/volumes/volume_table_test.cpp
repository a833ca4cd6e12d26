#include "volumes/volume_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <sstream>

#include "tests/support/fake_host.h"

namespace volumes {
namespace {

namespace fs = std::filesystem;
using platform::Location;
using Strings = std::vector<std::string>;
using Rows = std::vector<std::size_t>;

struct VolumeTableTest : ::testing::Test {
  tests::FakeHost host;
  VolumeTable table{host.output, host.panels};

  void SetUp() override { table.wire(); }

  void load(const Strings& lines) {
    table.load({lines.begin(), lines.end()});
    host.said();
  }
  // Lists images in the place of what was there, each named by a letter whose code is its size.
  // Those whose code is a multiple of three are missing.
  static std::int64_t sizeOf(char letter) { return letter % 3 == 0 ? 0 : letter; }
  void loadImages(const std::string& letters) {
    while (table.volumes().size() > 0) {
      table.tableView.selectRows({0});
      table.removeVol.sendAction();
    }
    Strings lines;
    for (const char letter : letters) {
      const std::string name(1, letter);
      if (sizeOf(letter) != 0) {
        host.home.write(name, std::string(static_cast<std::size_t>(letter), '.'));
      }
      lines.push_back("disk " + host.home.path(name));
    }
    load(lines);
  }
  // The letters in their order; checks that the lists are in step.
  std::string letters() {
    std::string all;
    const VolumeList& list = table.volumes();
    EXPECT_EQ(list.volName(), list.volLocal());
    EXPECT_EQ(list.volSize().size(), list.size());
    EXPECT_EQ(list.volType().size(), list.size());
    for (std::size_t row = 0; row < list.size(); ++row) {
      all += list.volName()[row].text().back();
      EXPECT_EQ(list.volSize()[row], sizeOf(all.back()));
      EXPECT_EQ(list.volType()[row], sizeOf(all.back()) == 0 ? "Not Found!" : "Disk Image");
    }
    return all;
  }
  std::string selectedLetters() {
    const std::string all = letters();
    std::string selected;
    for (const std::size_t row : table.tableView.selectedRows()) {
      selected += all.at(row);
    }
    return selected;
  }
  std::string cell(std::size_t column, std::size_t row) {
    const auto made = table.viewFor(column, row);
    return made ? made->identifier + "|" + made->text + "|" + made->image : "none";
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
  EXPECT_EQ(table.loCalDebug.stringValue(), "Debug: ");
  EXPECT_EQ(table.tableView.draggedTypes(), Strings{"private.table-row"});

  EXPECT_EQ(cell(0, 0), "NameCell|" + image + "|HappyMac.png");
  EXPECT_EQ(host.said(), "loCalmode volLocal\n" + url + "\nurl: " + url +
                             "\ndisk table cell name: " + image + "\n");
  EXPECT_EQ(cell(1, 0) + cell(1, 1), "SizeCell|1.5 MB|SizeCell|Zero KB|");
  EXPECT_EQ(cell(2, 0), "KindCell|Disk Image|");
  host.said();
  EXPECT_EQ(cell(2, 1), "KindCell|No Path!|");
  EXPECT_EQ(host.said(),
            "loCalmode volLocal\nno%3Awhere/%C3%BC%0D\nDebug: text.path for volume "
            "type: no:where/\u00fc\r\n");
  load({"disk " + host.home.path()});
  EXPECT_EQ(cell(1, 2) + cell(2, 2), "SizeCell|Zero KB|KindCell|Disk Image|");
}

TEST_F(VolumeTableTest, Adds) {
  loadImages("A");
  table.browseFile.sendAction();
  EXPECT_EQ(letters(), "A") << "cancelled";
  EXPECT_EQ(host.said(), "");
  const auto at = [&](const char* name) { return Location::fromPath(host.home.path(name)); };
  host.home.write("B", std::string('B', '.'));
  host.panels.answers = {{at("B"), at("A"), at("gone")}};
  table.browseFile.sendAction();
  EXPECT_EQ(host.panels.shown, (Strings{"sheet", "sheet"}));
  EXPECT_EQ(host.panels.open.title, "Select a volume");
  EXPECT_TRUE(host.panels.open.allowsMultipleSelection && host.panels.open.canChooseFiles &&
              host.panels.open.canCreateDirectories);
  EXPECT_FALSE(host.panels.open.canChooseDirectories || host.panels.open.showsHiddenFiles);
  EXPECT_EQ(host.panels.open.allowedFileTypes,
            (Strings{"img", "dmg", "dsk", "image", "cdr", "iso", "toast", "sparsebundle", "sparse",
                     "dc42", "hfv", "hvf", "hfs", "ndif", "dk*", "cue"}));
  EXPECT_EQ(table.volumes().volName(), (std::vector{at("A"), at("B"), at("A"), at("gone")}));
  EXPECT_EQ(table.volumes().volSize(), (std::vector<std::int64_t>{65, 66, 65, 0}));
  EXPECT_EQ(table.volumes().volType(), Strings(4, "Disk Image"));
  const std::string counter = "allfiles: (volName) counter: ";
  EXPECT_EQ(host.said(), "[65, 66]\n[65, 66, 65]\nError: No such file or directory\n" + counter +
                             at("A").text() + "\n" + counter + at("B").text() + "\n" + counter +
                             at("A").text() + "\n" + counter + at("gone").text() + "\n");
}

TEST_F(VolumeTableTest, Removes) {
  struct Case {
    std::string before;
    Rows selected;  // the last one is the selected row
    std::string after;
    std::string selectedAfter;
  };
  const std::vector<Case> cases = {{"ABC", {1}, "AC", ""},       {"ABC", {}, "ABC", ""},
                                   {"ABA", {2}, "BA", "A"},      {"ABCD", {3, 1, 2}, "ABD", "DB"},
                                   {"ABCB", {3, 1}, "ACB", "B"}, {"A", {0}, "", ""}};
  for (const Case& each : cases) {
    loadImages(each.before);
    table.tableView.selectRows(each.selected);
    table.removeVol.sendAction();
    EXPECT_EQ(letters(), each.after);
    EXPECT_EQ(selectedLetters(), each.selectedAfter) << each.before;
    EXPECT_EQ(host.said().empty(), each.before == each.after);
  }
  EXPECT_TRUE(fs::exists(host.home.path("A")));
}

TEST_F(VolumeTableTest, DropsAndKeys) {
  struct Case {
    std::string items;  // one digit each
    std::size_t row;
    std::string after;
  };
  const std::vector<Case> cases = {{"0", 3, "BCADE"},   {"3", 0, "DABCE"},   {"02", 4, "BDACE"},
                                   {"024", 5, "BDACE"}, {"14", 2, "ABECD"},  {"2", 2, "ABCDE"},
                                   {"2", 3, "ABCDE"},   {"", 1, "ABCDE"},    {"x-9", 0, "ABCDE"},
                                   {"x1", 0, "BACDE"},  {"000", 1, "ABCDE"}, {"0", 99, "BCDEA"}};
  for (const Case& each : cases) {
    loadImages("ABCDE");
    Strings items = {"", "1.5", "-1", "99999999999999999999"};
    for (const char digit : each.items) {
      items.emplace_back(1, digit);
    }
    EXPECT_TRUE(table.acceptDrop(items, each.row));
    EXPECT_EQ(letters(), each.after) << each.items << " at " << each.row;
  }
  EXPECT_EQ(table.validateDrop(platform::DropOperation::above), platform::DragOperation::move);
  EXPECT_EQ(table.validateDrop(platform::DropOperation::on), platform::DragOperation::none);

  loadImages("ABCDE");
  table.tableView.selectRows({3, 1});
  const std::vector<std::pair<void (VolumeTable::*)(), std::string>> keys = {
      {&VolumeTable::moveSelectionDown, "ACEBD"}, {&VolumeTable::moveSelectionDown, "ACEBD"},
      {&VolumeTable::moveSelectionUp, "ACBDE"},   {&VolumeTable::moveSelectionUp, "ABDCE"},
      {&VolumeTable::moveSelectionUp, "BDACE"},   {&VolumeTable::moveSelectionUp, "BDACE"},
      {&VolumeTable::moveSelectionDown, "ABDCE"}};
  for (const auto& [move, after] : keys) {
    (table.*move)();
    EXPECT_EQ(letters(), after);
    EXPECT_EQ(selectedLetters(), "DB");
  }
  table.tableView.selectRows({});
  table.moveSelectionUp();
  table.moveSelectionDown();
  EXPECT_EQ(letters(), "ABDCE");
}

// The naive model takes the dragged rows out and puts them back before the row of the drop.
TEST_F(VolumeTableTest, RandomDropsAgreeWithANaiveModel) {
  std::mt19937 random(68030);
  std::string model = "ABCDEFGHIJ";
  loadImages(model);
  for (int round = 0; round < 3000; ++round) {
    Rows rows(model.size());
    std::iota(rows.begin(), rows.end(), 0);
    std::shuffle(rows.begin(), rows.end(), random);
    rows.resize(random() % (model.size() + 1));
    table.tableView.selectRows(rows);
    std::string selected;
    for (const std::size_t row : rows) {
      selected += model[row];
    }
    std::sort(rows.begin(), rows.end());
    const std::size_t drop = random() % (model.size() + 1);
    Strings items;
    std::string before;
    std::string moved;
    std::string behind;
    for (std::size_t row = 0; row < model.size(); ++row) {
      const bool dragged = std::binary_search(rows.begin(), rows.end(), row);
      (dragged ? moved : row < drop ? before : behind) += model[row];
      if (dragged) {
        items.push_back(table.pasteboardWriterForRow(row));
      }
    }
    model = before + moved + behind;
    table.acceptDrop(items, drop);
    ASSERT_EQ(letters(), model) << "round " << round;
    ASSERT_EQ(selectedLetters(), selected) << "round " << round;
  }
}

}  // namespace
}  // namespace volumes
