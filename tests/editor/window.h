#pragma once

#include <string>

#include "editor/view_controller.h"
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
  std::string text;
  for (const document::KeyRow& row : document::keyTable) {
    text += document::Preferences::line(row.key, row.key == key ? value : row.defaultValue) + "\n";
  }
  return text;
}

inline std::string defaultFile() {
  return fileWith(Key::cpu, std::string(document::rowOf(Key::cpu).defaultValue));
}

}  // namespace editor
