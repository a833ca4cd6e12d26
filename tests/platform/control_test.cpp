#include "platform/control.h"

#include <gtest/gtest.h>

#include "platform/tab_view.h"

namespace platform {

TEST(Control, ShowsWhatIsNotTheUsersOwn) {
  TextField field("ramsize_field");
  std::vector<std::string> shown;
  field.attach([&] { shown.push_back(field.stringValue()); });
  field.setStringValue("64");
  field.setStringValue("64");
  const auto type = [&](const char* text) { field.edit([&] { field.setStringValue(text); }); };
  type("65");
  field.action = [&] { field.setStringValue("128"); };
  type("127");
  field.detach();
  type("129");
  EXPECT_EQ(field.stringValue(), "128");
  EXPECT_EQ(shown, (std::vector<std::string>{"", "64", "128"}));
}

TEST(ComboBox, TellsTypedFromChosen) {
  ComboBox box("size_box");
  box.addItems({"8", "16"});
  box.selectItem(1);
  EXPECT_EQ(box.stringValue(), "16");
  int shown = -1;
  box.attach([&] { ++shown; });
  box.enterText("16");
  EXPECT_EQ(shown, 1) << "the text is the same, the selection is not";
  EXPECT_FALSE(box.indexOfSelectedItem());
  box.selectItem(0);
  box.removeAllItems();
  EXPECT_EQ(box.stringValue(), "8");
  EXPECT_FALSE(box.indexOfSelectedItem());
}

}  // namespace platform
