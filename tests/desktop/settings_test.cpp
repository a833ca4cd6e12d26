#include "tests/desktop/window_fixture.h"
#include "tests/support/edits.h"

namespace {

class Settings : public tests::WindowTest {
 protected:
  /// Does it as a person does, on the tab where the control is.
  void perform(const tests::Case& edit) {
    QWidget* const widget = enter(edit["control"].c_str());
    if (edit.has("types")) {
      typeInto(edit["control"].c_str(), edit["types"].c_str());
      press("Tab");
    } else if (auto* const box = qobject_cast<QComboBox*>(widget)) {
      const auto entry = static_cast<int>(tests::entryIn(edit));
      box->setCurrentIndex(entry);  // as the list does
      Q_EMIT box->activated(entry);
    } else if (edit.has("clicks until it is")) {
      click(edit["control"].c_str());
    }
    for (int step = 0; edit.has("steps") && step < std::stoi(edit["steps"]); ++step) {
      press("Up");
    }
  }
};

TEST_F(Settings, EachWidgetEditsItsOwn) {
  open();
  tests::Model model("");
  for (const tests::Case& edit : tests::edits()) {
    perform(edit);
    tests::apply(edit, model);
    press("Ctrl+S");
    EXPECT_EQ(file(), model.text()) << edit.written;
  }
}

}  // namespace
