#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "editor/view_controller.h"
#include "tests/support/data.h"
#include "tests/support/model.h"

namespace tests {

using platform::State;

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

/// One thing that a person does to a control, and what comes of it.
struct Edit {
  std::string control;
  std::optional<std::string> typed = {};
  std::optional<std::size_t> chosen = {};  // the entry
  std::optional<State> clicked = {};       // the state that a click leads to
  int steps = 0;

  std::string said = {};
  std::vector<std::pair<Key, std::string>> values = {};  // that a save then writes
  std::optional<std::size_t> screenPart = {};            // the value is but a part of the screen's

  /// Changes what a save is to write. Steps are from the value before.
  void applyTo(Model& model) const {
    for (const auto& [key, value] : values) {
      if (screenPart) {
        model.setScreenPart(*screenPart, value);
      } else {
        model[key] = steps == 0 ? value : std::to_string(std::stoi(model[key]) + steps);
      }
    }
  }
};

/// The edits in a file below tests/data, in which they say what they are told to say in this order.
inline std::vector<Edit> editsIn(const std::string& file) {
  std::vector<Edit> edits;
  for (const Case& each : cases(file, {"control", "types", "chooses entry", "clicks until it is",
                                       "steps", "says", "saves", "part of the screen"})) {
    Edit edit{.control = each["control"], .said = each.lines("says")};
    if (each.has("types")) {
      edit.typed = each["types"];
    } else if (each.has("chooses entry")) {
      edit.chosen = std::stoul(each["chooses entry"]) - 1;
    } else if (each.has("steps")) {
      edit.steps = std::stoi(each["steps"]);
    } else {
      const std::string& state = each["clicks until it is"];
      edit.clicked = state == "on" ? State::on : state == "off" ? State::off : State::mixed;
    }
    for (const std::string& line : each.all("saves")) {
      edit.values.emplace_back(keyOf(line), line.substr(line.find(' ') + 1));
    }
    if (each.has("part of the screen")) {
      edit.screenPart = std::stoul(each["part of the screen"]) - 1;
    }
    edits.push_back(std::move(edit));
  }
  return edits;
}

inline const std::vector<Edit>& edits() {
  static const std::vector<Edit> all = editsIn("edits.txt");
  return all;
}

/// Edits the control itself, without a window.
inline void perform(editor::ViewController& window, const Edit& edit) {
  platform::Control& control = settingControl(window, edit.control);
  control.edit([&] {
    if (auto* const box = dynamic_cast<platform::ComboBox*>(&control)) {
      if (edit.typed) {
        box->enterText(*edit.typed);
      } else {
        box->selectItem(*edit.chosen);
      }
    } else if (auto* const field = dynamic_cast<platform::TextField*>(&control)) {
      field->setStringValue(*edit.typed);
    } else if (auto* const button = dynamic_cast<platform::PopUpButton*>(&control)) {
      button->selectItem(*edit.chosen);
    } else if (auto* const stepper = dynamic_cast<platform::Stepper*>(&control)) {
      stepper->setIntegerValue(stepper->valueAfter(edit.steps));
    } else {
      dynamic_cast<platform::Button&>(control).setState(*edit.clicked);
    }
  });
}

}  // namespace tests
