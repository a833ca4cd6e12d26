#include "editor/saved_state.h"

#include <gtest/gtest.h>

#include "editor/view_controller.h"
#include "tests/support/fake_host.h"

namespace editor {
namespace {

TEST(SavedState, ListsEachControlOnceAndPutsItBack) {
  const std::string text = "disk /a.dsk\ndisk /b.dsk\ncpu 4\nfpu true\nscreen win/640/480\n";
  tests::FakeHost host;
  host.home.write(tests::FakeHost::prefs, text);
  ViewController controller(host.host());
  controller.viewDidLoad();
  const std::string before = controller.textToSave();
  EXPECT_TRUE(controller.saved.changes().empty());

  controller.machine.cpuType.button.edit([&] { controller.machine.cpuType.button.selectItem(0); });
  controller.display.screen.screenWidth.edit(
      [&] { controller.display.screen.screenWidth.enterText("1000"); });
  controller.volumes.tableView.selectRows({1});
  controller.volumes.moveSelectionUp();
  host.panels.answers = {{platform::Location::fromPath("/c.dsk")}};
  controller.volumes.browseFile.sendAction();

  const std::vector<Change> changes = controller.saved.changes();
  ASSERT_EQ(changes.size(), 2U);
  EXPECT_EQ(changes[0].was, controller.display.screen.shownText("win/640/480"));
  EXPECT_EQ(changes[0].is, controller.display.screen.shownText("win/1000/480"));
  EXPECT_EQ(changes[1].was, "68040");
  EXPECT_EQ(changes[1].is, "68020");
  const VolumeChanges volumes = controller.saved.volumeChanges();
  EXPECT_EQ(volumes.added, 1U);
  EXPECT_EQ(volumes.removed, 0U);
  EXPECT_TRUE(volumes.moved);

  host.said();
  controller.saved.putBack(Key::cpu);
  EXPECT_EQ(host.said(), "4\ntrue\n");
  EXPECT_EQ(controller.machine.cpuType.shownValue(), "68040");
  controller.saved.putAllBack();
  EXPECT_EQ(controller.textToSave(), before);
  EXPECT_EQ(controller.display.screen.screenWidth.stringValue(), "640");
  EXPECT_EQ(controller.volumes.numberOfRows(), 2U);
}

}  // namespace
}  // namespace editor
