#include "volumes/volume_table.h"

#include <gtest/gtest.h>

#include "tests/support/data.h"
#include "tests/support/fake_host.h"

namespace volumes {
namespace {

using platform::Location;
using Strings = std::vector<std::string>;

struct VolumeTableTest : testing::Test {
  tests::FakeHost host;

  [[nodiscard]] Location at(const std::string& name) const {
    return Location::fromPath(host.home.path(name));
  }

  /// Lists a file for each letter, as many bytes long as the letter's number.
  void load(VolumeTable& table, const std::string& letters) {
    std::vector<std::string> lines;
    for (const char letter : letters) {
      const auto size = static_cast<std::size_t>(letter - 'A' + 1);
      lines.push_back("disk " + host.home.write(std::string(1, letter), std::string(size, 'x')));
    }
    table.wire();
    table.load({lines.begin(), lines.end()});
    host.said();
  }

  /// The letters in the order of the list. Each entry must still have its own size.
  static std::string orderOf(const VolumeTable& table) {
    std::string letters;
    for (const Location& location : table.volumes().volName()) {
      const char letter = location.text().back();
      EXPECT_EQ(table.volumes().volSize().at(letters.size()), letter - 'A' + 1);
      letters += letter;
    }
    EXPECT_EQ(table.volumes().volLocal(), table.volumes().volName());
    return letters;
  }
};

TEST_F(VolumeTableTest, DropsRowsAboveARow) {
  for (const tests::Case& each :
       tests::cases("volume-drops.txt", {"rows", "above", "list", "selected"})) {
    SCOPED_TRACE(each.written);
    VolumeTable table(host.output, host.panels);
    load(table, "ABCDE");
    table.tableView.selectRows({3, 1});
    EXPECT_EQ(table.validateDrop(platform::DropOperation::on), platform::DragOperation::none);
    EXPECT_EQ(table.validateDrop(platform::DropOperation::above), platform::DragOperation::move);
    EXPECT_TRUE(table.acceptDrop(each.all("rows"), std::stoul(each["above"])));
    EXPECT_EQ(orderOf(table), each["list"]);
    const auto selected = table.tableView.selectedRows();
    EXPECT_EQ(std::to_string(selected.at(0)) + ", " + std::to_string(selected.at(1)),
              each["selected"]);
    EXPECT_FALSE(table.viewFor(std::nullopt, 0)) << "it asks so after a drop, and reloads";
  }
}

TEST_F(VolumeTableTest, AddsWhatIsChosen) {
  VolumeTable table(host.output, host.panels);
  load(table, "A");
  host.home.write("B", "12");
  const auto unfit = platform::Location::fromPath("/a\nb");
  const std::string refused = "A line feed cannot stand in the preferences file: file:///a%0Ab\n";
  host.panels.answers = {{}, {unfit}, {at("B"), unfit, at("A"), at("gone")}};
  table.browseFile.sendAction();
  EXPECT_EQ(host.said(), "") << "a cancel adds nothing";
  table.browseFile.sendAction();
  EXPECT_EQ(host.said(), refused);
  table.browseFile.sendAction();
  std::string said = refused + "[1, 2]\n[1, 2, 1]\nError: No such file or directory\n";
  for (const char* const name : {"A", "B", "A", "gone"}) {
    said += "allfiles: (volName) counter: " + at(name).text() + "\n";
  }
  EXPECT_EQ(host.said(), said);
  EXPECT_EQ(table.volumes().volName(), (std::vector{at("A"), at("B"), at("A"), at("gone")}));
  EXPECT_EQ(table.volumes().volSize(), (std::vector<std::int64_t>{1, 2, 1, 0}));
  EXPECT_EQ(table.volumes().volType(), Strings(4, "Disk Image"));
  const platform::OpenPanel& panel = host.panels.open;
  EXPECT_EQ(host.panels.shown, "sheet Select a volume");
  EXPECT_TRUE(panel.allowsMultipleSelection && panel.canChooseFiles && panel.canCreateDirectories);
  EXPECT_FALSE(panel.canChooseDirectories);
  EXPECT_EQ(platform::listText(panel.allowedFileTypes),
            R"(["img", "dmg", "dsk", "image", "cdr", "iso", "toast", "sparsebundle", "sparse", )"
            R"("dc42", "hfv", "hvf", "hfs", "ndif", "dk*", "cue"])");
}

TEST_F(VolumeTableTest, ReadsTheListThatTheMarkTells) {
  VolumeTable table(host.output, host.panels);
  load(table, "A");
  const auto expectAfter = [&](platform::State state, const std::string& said) {
    const std::size_t before = table.tableView.revision();
    table.ronMode.setState(state);
    table.ronMode.sendAction();
    EXPECT_EQ(table.tableView.revision() != before, state != platform::State::mixed);
    table.viewFor(1, 0);
    EXPECT_EQ(host.said(), said + "\n" + at("A").text() + "\n");
  };
  EXPECT_TRUE(table.ronMode.isOn());
  expectAfter(platform::State::off, "0\nronMode off\nloCalmode volRegular");
  expectAfter(platform::State::mixed, "-1\nloCalmode volRegular");
  expectAfter(platform::State::on, "1\nronMode on\nloCalmode volLocal");
}

TEST_F(VolumeTableTest, OnlyTellsThePlaceOfTheSavePanel) {
  VolumeTable table(host.output, host.panels);
  host.panels.answers = {{}, {at("new.dsk")}};
  table.sheetCreate.sendAction();
  table.sheetCreate.sendAction();
  EXPECT_EQ(host.said(), at("new.dsk").text() + "\n");
  EXPECT_EQ(host.panels.shown, "save sheet Create a new blank volume");
  EXPECT_EQ(table.numberOfRows(), 0U);
}

}  // namespace
}  // namespace volumes
