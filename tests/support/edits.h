#pragma once

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "editor/view_controller.h"
#include "tests/support/model.h"

namespace tests {

using document::Key;
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
  std::string_view control;
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

/// For each control each way to edit it. In this order they say what they are told to say.
// clang-format off
inline const std::vector<Edit> edits = {
    {.control = "unixRootPath", .typed = "/a b/", .said = "/a b/\n", .values = {{Key::extfs, "/a b/"}}},
    {.control = "screenType", .chosen = 1, .said = "1\ndga\n", .values = {{Key::screen, "dga"}}, .screenPart = 0},
    {.control = "screenWidth", .chosen = 1, .said = "800\n", .values = {{Key::screen, "800"}}, .screenPart = 1},
    {.control = "screenWidth", .chosen = 4, .said = "0\n", .values = {{Key::screen, "0"}}, .screenPart = 1},
    {.control = "screenWidth", .typed = "1152", .said = "1152\n", .values = {{Key::screen, "1152"}}, .screenPart = 1},
    {.control = "screenHeight", .chosen = 3, .said = "384\n", .values = {{Key::screen, "384"}}, .screenPart = 2},
    {.control = "screenHeight", .typed = "Maximum", .said = "Maximum\n", .values = {{Key::screen, "Maximum"}}, .screenPart = 2},
    {.control = "screenType", .chosen = 0, .said = "0\nwin\n", .values = {{Key::screen, "win"}}, .screenPart = 0},
    {.control = "modemPort", .typed = "cu", .said = "cu\n", .values = {{Key::seriala, "cu"}}},
    {.control = "printerPort", .typed = "lp", .said = "Optional(\"lp\")\nlp\n", .values = {{Key::serialb, "lp"}}},
    {.control = "printerPort", .chosen = 0, .said = "Optional(\"lp\")\nlp\n"},
    {.control = "etherPort", .typed = "en0", .said = "en0\n", .values = {{Key::ether, "en0"}}},
    {.control = "tunnelUDP", .clicked = State::on, .said = "1\n", .values = {{Key::udptunnel, "true"}}},
    {.control = "tunnelUDP", .clicked = State::off, .said = "0\n", .values = {{Key::udptunnel, "false"}}},
    {.control = "portStep", .steps = 1, .said = "6067\nUDP: 6067\n", .values = {{Key::udpport, "6067"}}},
    {.control = "romFile", .typed = "/my rom", .said = "/my rom\n", .values = {{Key::rom, "/my rom"}}},
    {.control = "stateStart", .chosen = 1, .said = "1\n", .values = {{Key::bootdrive, "1"}}},
    {.control = "stateStart", .chosen = 0, .said = "0\n", .values = {{Key::bootdrive, "0"}}},
    {.control = "ramSizeMB", .typed = "48", .said = "50331648\n1048576\nOptional(48)\n50331648\n", .values = {{Key::ramsize, "50331648"}}},
    {.control = "ramSizeMB", .chosen = 0, .said = "1048576\nOptional(1024)\n1073741824\n", .values = {{Key::ramsize, "1073741824"}}},
    {.control = "ramSizeMB", .typed = "1.5", .said = "1048576\nOptional(1024)\n1073741824\n"},
    {.control = "refreshRate", .chosen = 5, .said = "5\n8\n", .values = {{Key::frameskip, "8"}}},
    {.control = "modelID", .chosen = 1, .said = "1\n", .values = {{Key::modelid, "14"}}},
    {.control = "modelID", .chosen = 0, .said = "0\n", .values = {{Key::modelid, "5"}}},
    {.control = "cpuType", .chosen = 4, .said = "4\n4\ntrue\n", .values = {{Key::cpu, "4"}, {Key::fpu, "true"}}},
    {.control = "cpuType", .chosen = 0, .said = "0\n2\nfalse\n", .values = {{Key::cpu, "2"}, {Key::fpu, "false"}}},
    {.control = "stateCDROM", .clicked = State::on, .said = "1\non\n", .values = {{Key::nocdrom, "true"}}},
    {.control = "stateCDROM", .clicked = State::off, .said = "0\noff\n", .values = {{Key::nocdrom, "false"}}},
    {.control = "disableSound", .clicked = State::on, .said = "1\n", .values = {{Key::nosound, "true"}}},
    {.control = "enableJIT", .clicked = State::on, .said = "true\n", .values = {{Key::jit, "true"}}},
    {.control = "compileFPU", .clicked = State::on, .said = "true\n", .values = {{Key::jitfpu, "true"}}},
    {.control = "jitCache", .chosen = 0, .said = "2048\n", .values = {{Key::jitcachesize, "2048"}}},
    {.control = "jitCache", .typed = "abc", .said = "abc\n", .values = {{Key::jitcachesize, "abc"}}},
    {.control = "lazyFlush", .clicked = State::off, .said = "false\n", .values = {{Key::jitlazyflush, "false"}}},
    {.control = "inlineBlocks", .clicked = State::off, .said = "false\n", .values = {{Key::jitinline, "false"}}},
    {.control = "rawKeys", .clicked = State::on, .said = "1\n", .values = {{Key::keycodes, "true"}}},
    {.control = "rawKeyFile", .typed = "/codes", .said = "/codes\n", .values = {{Key::keycodefile, "/codes"}}},
    {.control = "mouseWheel", .chosen = 0, .said = "0\n", .values = {{Key::mousewheelmode, "0"}}},
    {.control = "mouseWheel", .chosen = 1, .said = "1\n", .values = {{Key::mousewheelmode, "1"}}},
    {.control = "mouseScrollLvl", .steps = 2, .said = "5\nscrollLvl: 5\n", .values = {{Key::mousewheellines, "5"}}},
    {.control = "audioOut", .typed = "/dsp", .said = "/dsp\n", .values = {{Key::dsp, "/dsp"}}},
    {.control = "audioMix", .typed = "/mixer", .said = "/mixer\n", .values = {{Key::mixer, "/mixer"}}},
    {.control = "ignoreSegV", .clicked = State::off, .said = "0\n", .values = {{Key::ignoresegv, "false"}}},
    {.control = "dontUseCPU", .clicked = State::off, .said = "0\n", .values = {{Key::idlewait, "false"}}},
};
// clang-format on

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
