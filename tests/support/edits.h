#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "editor/view_controller.h"
#include "tests/support/data.h"
#include "tests/support/model.h"

namespace tests {

/// The controls that show settings, in the order of their keys.
inline std::vector<platform::Control*> settingControls(editor::ViewController& window) {
  auto& screen = window.display.screen;
  auto& network = window.network;
  auto& machine = window.machine;
  auto& input = window.input;
  auto& jit = window.jit;
  // clang-format off
  return {&window.sharedFolder.unixRootPath.field, &screen.screenType, &screen.screenWidth,
          &screen.screenHeight, &network.modemPort.box, &network.printerPort.box,
          &network.etherPort.box, &network.tunnelUDP.box, &network.portUDP.field,
          &network.portUDP.stepper, &machine.romFile.field, &machine.stateStart.button,
          &machine.ramSizeMB.box, &window.display.refreshRate.button, &machine.modelID.button,
          &machine.cpuType.button, &machine.stateCDROM.box, &input.disableSound.box,
          &jit.enableJIT.box, &jit.compileFPU.box, &jit.jitCache.box, &jit.lazyFlush.box,
          &jit.inlineBlocks.box, &input.rawKeys.box, &input.rawKeyFile.field,
          &input.mouseWheel.button, &input.mouseScroll.field, &input.mouseScroll.stepper,
          &input.audioOut.field, &input.audioMix.field, &jit.ignoreSegV.box, &jit.dontUseCPU.box};
  // clang-format on
}

inline platform::Control& settingControl(editor::ViewController& window, std::string_view name) {
  for (platform::Control* const control : settingControls(window)) {
    if (control->name() == name) {
      return *control;
    }
  }
  throw std::logic_error("no control " + std::string(name));
}

/// The edits in a file below tests/data: what a person does to a control, the lines that it says,
/// and those that a save then writes.
inline std::vector<Case> editsIn(const std::string& file) {
  return cases(file, {"control", "types", "chooses entry", "clicks until it is", "steps", "says",
                      "saves", "part of the screen"});
}

inline const std::vector<Case>& edits() {
  static const std::vector<Case> all = editsIn("edits.txt");
  return all;
}

/// The entry that an edit chooses, counted from 0.
inline std::size_t entryIn(const Case& edit) { return std::stoul(edit["chooses entry"]) - 1; }

/// Changes what a save is to write. Steps are from the value before.
inline void apply(const Case& edit, Model& model) {
  for (const std::string& line : edit.all("saves")) {
    const Key key = keyOf(line);
    const std::string value = line.substr(line.find(' ') + 1);
    if (edit.has("part of the screen")) {
      model.setScreenPart(std::stoul(edit["part of the screen"]) - 1, value);
    } else if (edit.has("steps")) {
      model[key] = std::to_string(std::stoi(model[key]) + std::stoi(edit["steps"]));
    } else {
      model[key] = value;
    }
  }
}

/// Edits the control itself, without a window.
inline void perform(const Case& edit, editor::ViewController& window) {
  platform::Control& control = settingControl(window, edit["control"]);
  control.edit([&] {
    if (auto* const box = dynamic_cast<platform::ComboBox*>(&control)) {
      if (edit.has("types")) {
        box->enterText(edit["types"]);
      } else {
        box->selectItem(entryIn(edit));
      }
    } else if (auto* const field = dynamic_cast<platform::TextField*>(&control)) {
      field->setStringValue(edit["types"]);
    } else if (auto* const button = dynamic_cast<platform::PopUpButton*>(&control)) {
      button->selectItem(entryIn(edit));
    } else if (auto* const stepper = dynamic_cast<platform::Stepper*>(&control)) {
      stepper->setIntegerValue(stepper->valueAfter(std::stoi(edit["steps"])));
    } else {
      const std::string state = edit["clicks until it is"];
      dynamic_cast<platform::Button&>(control).setState(state == "on"    ? platform::State::on
                                                        : state == "off" ? platform::State::off
                                                                         : platform::State::mixed);
    }
  });
}

}  // namespace tests
