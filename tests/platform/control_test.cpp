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

TEST(PopUpButton, KeepsTheChosenEntryWhenOthersGo) {
  PopUpButton button("card_button");
  button.addItems({"none", "etherhelper", "slirp"});
  EXPECT_EQ(button.indexOfSelectedItem(), 0);
  button.selectItem(2);
  button.removeItem(1);
  EXPECT_EQ(button.indexOfSelectedItem(), 1);
  button.removeItem(1);
  EXPECT_FALSE(button.indexOfSelectedItem());
}

TEST(TabView, KeepsTheOrderOfItsItems) {
  TabView tabs("tabs");
  const auto first = std::make_shared<TabViewItem>();
  const auto second = std::make_shared<TabViewItem>();
  tabs.addTabViewItem(second);
  tabs.insertTabViewItem(first, 0);
  EXPECT_EQ(tabs.items(), (std::vector{first, second}));
  tabs.removeTabViewItem(first);
  EXPECT_EQ(tabs.items(), std::vector{second});
}

}  // namespace platform
