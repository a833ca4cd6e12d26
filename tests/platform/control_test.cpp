#include "platform/control.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>

#include "platform/notification_center.h"

namespace platform {

TEST(Control, ShowsWhatIsNotTheUsersOwn) {
  ComboBox box("size_box");
  std::string shown;
  std::optional<Subscription> view = box.attach([&] {
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
  view.reset();
  type("129");
  EXPECT_EQ(shown, " 64 128 16* 16 8* 8 ");
  EXPECT_EQ(box.stringValue(), "128");
}

TEST(Subscription, EndsWithEitherSide) {
  std::string told;
  auto center = std::make_unique<NotificationCenter>();
  Subscription first = center->addObserver("done", [&] { told += "first "; });
  Subscription second = center->addObserver("done", [&] {
    told += "second ";
    second = {};  // a window may close when it is told
  });
  center->post("done");
  center->post("done");
  first = {};
  center->post("done");
  EXPECT_EQ(told, "first second first ");
  const Subscription last = center->addObserver("done", [&] { told += "last"; });
  center.reset();
}

}  // namespace platform
