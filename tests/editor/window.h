#pragma once

#include <string>

#include "editor/view_controller.h"
#include "fuzz/model.h"
#include "tests/support/fake_host.h"

namespace editor {

/// A started settings window over a preferences file of that text.
struct OpenWindow {
  tests::FakeHost host;
  ViewController controller{host.host()};

  explicit OpenWindow(const std::string& text) {
    host.home.write(tests::FakeHost::prefs, text);
    controller.viewDidLoad();
  }

  [[nodiscard]] std::string saved() {
    controller.savePrefsAny();
    return host.home.read(tests::FakeHost::prefs);
  }
};

/// A preferences file with all defaults, but one key with another value.
inline std::string fileWith(Key key, const std::string& value) {
  fuzz::Model model("");
  model[key] = value;
  return model.text();
}

inline std::string defaultFile() { return fuzz::Model("").text(); }

}  // namespace editor
