#include "tests/desktop/window_fixture.h"
#include "tests/support/edits.h"

namespace {

using tests::Edit;

class Settings : public tests::WindowTest {
 protected:
  /// Does it as a person does, on the tab where the control is.
  void perform(const Edit& edit) {
    QWidget* const widget = enter(edit.control.c_str());
    if (edit.typed) {
      typeInto(edit.control.c_str(), edit.typed->c_str());
      press("Tab");
    } else if (auto* const box = qobject_cast<QComboBox*>(widget)) {
      box->setCurrentIndex(static_cast<int>(*edit.chosen));  // as the list does
      Q_EMIT box->activated(static_cast<int>(*edit.chosen));
    } else if (edit.clicked) {
      click(edit.control.c_str());
    }
    for (int step = 0; step < edit.steps; ++step) {
      press("Up");
    }
  }
};

TEST_F(Settings, EachWidgetEditsItsOwn) {
  open();
  tests::Model model("");
  for (const Edit& edit : tests::edits()) {
    perform(edit);
    edit.applyTo(model);
    press("Ctrl+S");
    EXPECT_EQ(file(), model.text()) << edit.control << " " << edit.said;
  }
}

}  // namespace
