#pragma once

#include <string>

#include "tests/support/edits.h"

namespace tests {

/// What a control shows, in words.
inline std::string described(const platform::Control& control) {
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

/// A line for each control of the settings, and for each cell of the table.
inline std::string shownBy(editor::ViewController& window) {
  std::string shown = "filename_field: " + described(window.filename_field) + "\n";
  for (const platform::Control* const control : settingControls(window)) {
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

}  // namespace tests
