#include "tests/desktop/window_fixture.h"
#include "tests/support/edits.h"

namespace {

using tests::Edit;

class Settings : public tests::WindowTest {
 protected:
  /// Does it as a person does, on the tab where the control is.
  void perform(const Edit& edit) {
    const std::string& name = edit.control;
    QWidget* const widget = find(name.c_str());
    showTabOf(widget);
    widget->setFocus();
    if (edit.typed) {
      typeInto(name.c_str(), edit.typed->c_str());
      key(Qt::Key_Tab);
    } else if (edit.chosen) {
      auto* const box = qobject_cast<QComboBox*>(widget);
      box->setCurrentIndex(static_cast<int>(*edit.chosen));  // as the list does
      Q_EMIT box->activated(static_cast<int>(*edit.chosen));
    } else if (edit.clicked) {
      click(name.c_str());
    } else {
      for (int step = 0; step < edit.steps; ++step) {
        key(Qt::Key_Up);
      }
    }
  }
};

TEST_F(Settings, EachWidgetEditsItsOwn) {
  open();
  window->completePages();
  tests::Model model("");
  for (const Edit& edit : tests::edits()) {
    SCOPED_TRACE(edit.control + " " + edit.said);
    perform(edit);
    edit.applyTo(model);
    key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(file(), model.text());
  }
}

}  // namespace
