#include "volumes/volume_table.h"

#include <gtest/gtest.h>

#include "tests/support/data.h"
#include "tests/support/fake_host.h"

namespace volumes {
namespace {

using platform::Location;

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

TEST_F(VolumeTableTest, SaysWhatIsDone) {
  VolumeTable table(host.output, host.panels);
  load(table, "A");
  host.home.write("B", "12");
  host.home.write("folder/in it", "");
  for (const tests::Case& each : tests::cases(
           "volume-steps.txt", {"click", "state", "chosen", "shows", "says"}, host.home.path())) {
    SCOPED_TRACE(each.written);
    host.panels.answers.assign(1, {});
    for (const std::string& path : each.all("chosen")) {
      host.panels.answers.back().push_back(Location::fromPath(path));
    }
    for (platform::Button* const button : {&table.browseFile, &table.sheetCreate, &table.ronMode}) {
      if (button->name() == each["click"]) {
        button->setState(each["state"] == "on"    ? platform::State::on
                         : each["state"] == "off" ? platform::State::off
                                                  : platform::State::mixed);
        button->sendAction();
      }
    }
    table.viewFor(1, 0);
    EXPECT_EQ(host.said(), each.lines("says"));
    EXPECT_EQ(std::exchange(host.panels.shown, {}), each["shows"]);
  }
  EXPECT_EQ(table.volumes().volName(),
            (std::vector{at("A"), at("B"), at("A"), at("gone"), at("folder")}));
  EXPECT_EQ(table.volumes().volSize(), (std::vector<std::int64_t>{1, 2, 1, 0, 0}));
  EXPECT_EQ(table.volumes().volType(), std::vector<std::string>(5, "Disk Image"));
  const platform::OpenPanel& panel = host.panels.open;
  EXPECT_TRUE(panel.allowsMultipleSelection && panel.canChooseFiles && panel.canCreateDirectories);
  EXPECT_FALSE(panel.canChooseDirectories);
}

}  // namespace
}  // namespace volumes
