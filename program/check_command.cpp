#include "program/check_command.h"

#include <algorithm>
#include <iostream>
#include <string>

#include "checks/findings.h"
#include "checks/window_state.h"
#include "program/headless_window.h"

namespace program {
namespace {

// A path may hold line feeds, which would fake further findings, and escape sequences, which a
// terminal would carry out.
std::string onOneLine(const std::string& text) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string line;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte == 0x7f) {
      line += {'\\', 'x', digits[byte >> 4U], digits[byte & 15U]};
    } else {
      line += c;
    }
  }
  return line;
}

}  // namespace

int checkWithoutWindow(const std::string& homeDirectory, const std::string& configHome,
                       const platform::Bundle& bundle) {
  platform::NoOutput output;
  HeadlessWindow window(homeDirectory, configHome, bundle, output);
  editor::ViewController& controller = window.controller;
  controller.viewDidLoad(document::Preferences::IfMissing::leave);
  const checks::State state = checks::stateOf(controller);
  const auto found = checks::findings(state, checks::gather(state));
  for (const checks::Finding& finding : found) {
    std::cout << nameOf(finding.level) << '\t' << nameOf(finding.subject) << '\t'
              << onOneLine(checks::english(finding.text)) << '\n';
  }
  std::cout << std::flush;
  const bool stops = std::any_of(found.begin(), found.end(), [](const checks::Finding& finding) {
    return finding.level == checks::Level::stops;
  });
  return stops ? 1 : 0;
}

}  // namespace program
