// What a start over a preferences file says, shows and saves, as a whole. Each file in
// tests/data/starts is a case: a preferences file, and under headings what comes of it.

#include <gtest/gtest.h>

#include "tests/support/edits.h"
#include "tests/support/fake_host.h"
#include "tests/support/golden.h"

namespace editor {
namespace {

std::string described(const platform::Control& control) {
  const std::string state = control.isEnabled() ? "" : ", disabled";
  const auto entry = [](const platform::Choice& list) {
    const auto index = list.indexOfSelectedItem();
    return (index ? ", entry " + std::to_string(*index + 1) : ", no entry") + " of " +
           platform::listText(list.items());
  };
  if (const auto* const box = dynamic_cast<const platform::ComboBox*>(&control)) {
    return "\"" + box->stringValue() + "\"" + entry(*box) + state;
  }
  if (const auto* const field = dynamic_cast<const platform::TextField*>(&control)) {
    return "\"" + field->stringValue() + "\"" + (field->isEditable() ? "" : ", read-only") + state;
  }
  if (const auto* const button = dynamic_cast<const platform::PopUpButton*>(&control)) {
    return "\"" + button->items().at(*button->indexOfSelectedItem()) + "\"" + entry(*button) +
           state;
  }
  if (const auto* const stepper = dynamic_cast<const platform::Stepper*>(&control)) {
    return std::to_string(stepper->integerValue()) + state;
  }
  return (dynamic_cast<const platform::Button&>(control).isOn() ? "on" : "off") + state;
}

std::string shownBy(ViewController& window) {
  std::string shown = "filename_field: " + described(window.filename_field) + "\n";
  for (const platform::Control* const control : tests::settingControls(window)) {
    shown += control->name() + ": " + described(*control) + "\n";
  }
  for (std::size_t row = 0; row < window.volumes.numberOfRows(); ++row) {
    for (const std::size_t column : {0U, 1U, 2U}) {
      const auto cell = window.volumes.viewFor(column, row).value_or(platform::TableCell());
      shown += cell.identifier + " " + std::to_string(row + 1) + ": \"" + cell.text + "\" " +
               cell.image + "\n";
    }
  }
  return shown;
}

struct Starts : testing::TestWithParam<std::string> {};

TEST_P(Starts, SayShowAndSaveWhatTheFileTells) {
  tests::FakeHost host;
  host.home.write("a 100%25.dsk", std::string(1'474'560, '\0'));
  tests::Golden golden("starts/" + GetParam(), host.home.path());
  if (const std::string file = golden.section("The preferences file"); file != "none\n") {
    host.home.write(tests::FakeHost::prefs, file);
  }
  ViewController window(host.host());
  window.viewDidLoad();
  golden.expect("What opening it says", host.said());
  golden.expect("What is shown", shownBy(window));
  golden.expect("What asking for the cells says", host.said());
  golden.expect("What is there before a save", host.home.read(tests::FakeHost::prefs));
  window.startQuil.sendAction();
  golden.expect("What Start says", host.said());
  golden.expect("What is saved", host.home.read(tests::FakeHost::prefs));
}

INSTANTIATE_TEST_SUITE_P(Files, Starts, testing::ValuesIn(tests::goldenFiles("starts")),
                         [](const auto& file) { return tests::testName(file.param); });

}  // namespace
}  // namespace editor
