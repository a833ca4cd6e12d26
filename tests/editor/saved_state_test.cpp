#include "editor/saved_state.h"

#include <gtest/gtest.h>

#include "editor/view_controller.h"
#include "tests/support/fake_host.h"

namespace editor {

TEST(SavedState, ListsEachControlOnceAndPutsItBack) {
  const std::string text = "disk /a.dsk\ndisk /b.dsk\ncpu 4\nfpu true\nscreen win/640/480\n";
  tests::FakeHost host;
  host.home.write(tests::FakeHost::prefs, text);
  ViewController controller(host.host());
  controller.viewDidLoad();
  const std::string before = controller.textToSave();
  EXPECT_TRUE(controller.saved.changes().empty());

  controller.machine.cpuType.button.edit([&] { controller.machine.cpuType.button.selectItem(0); });
  platform::ComboBox& width = controller.display.screen.screenWidth;
  width.edit([&] { width.enterText("1000"); });
  controller.volumes.tableView.selectRows({1});
  controller.volumes.moveSelectionUp();
  host.panels.answers = {{platform::Location::fromPath("/c.dsk")}};
  controller.volumes.browseFile.sendAction();

  std::string changes;
  for (const Change& change : controller.saved.changes()) {
    changes += change.was + " -> " + change.is + "\n";
  }
  EXPECT_EQ(changes, "Window, 640 × 480 -> Window, 1000 × 480\n68040 -> 68020\n");
  const auto [added, removed, moved] = controller.saved.volumeChanges();
  EXPECT_EQ(added, 1U);
  EXPECT_EQ(removed, 0U);
  EXPECT_TRUE(moved);

  host.said();
  controller.saved.putBack(Key::cpu);
  EXPECT_EQ(host.said(), "4\ntrue\n");
  controller.saved.putAllBack();
  EXPECT_EQ(controller.textToSave(), before);
  EXPECT_EQ(controller.display.screen.screenWidth.stringValue(), "640");
}

}  // namespace editor
