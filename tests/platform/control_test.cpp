#include "platform/control.h"

#include <gtest/gtest.h>

namespace platform {

TEST(Control, ShowsWhatIsNotTheUsersOwn) {
  ComboBox box("size_box");
  std::string shown;
  box.attach([&] {
    const std::string state = box.stringValue() + (box.indexOfSelectedItem() ? "* " : " ");
    shown += shown.ends_with(" " + state) ? "" : state;
  });
  const auto type = [&](const char* text) { box.edit([&] { box.enterText(text); }); };
  box.setStringValue("64");
  box.setStringValue("64");
  type("65");
  box.action = [&] { box.setStringValue("128"); };
  type("127");
  box.addItems({"8", "16"});
  box.selectItem(1);
  box.enterText("16");  // the text is the same, the selection is not
  box.selectItem(0);
  box.removeAllItems();
  box.detach();
  type("129");
  EXPECT_EQ(shown, " 64 128 16* 16 8* 8 ");
  EXPECT_EQ(box.stringValue(), "128");
}

}  // namespace platform
