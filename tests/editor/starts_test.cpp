#include <gtest/gtest.h>

#include "tests/support/edits.h"
#include "tests/support/fake_host.h"
#include "tests/support/golden.h"
#include "tests/support/shown.h"

namespace editor {

// What a start over a preferences file says, shows and saves, as a whole. Each file in
// tests/data/starts is a case: a preferences file, and under headings what comes of it.
TEST(Starts, SayShowAndSaveWhatTheFileTells) {
  for (const auto& file : std::filesystem::directory_iterator(tests::dataPath("starts"))) {
    tests::FakeHost host;
    host.home.write("a 100%25.dsk", std::string(1'474'560, '\0'));
    tests::Golden golden("starts/" + file.path().filename().string(), host.home.path());
    if (const std::string text = golden.section("The preferences file"); text != "none\n") {
      host.home.write(tests::FakeHost::prefs, text);
    }
    ViewController window(host.host());
    window.viewDidLoad();
    golden.expect("What opening it says", host.said());
    golden.expect("What is shown", tests::shownBy(window));
    golden.expect("What asking for the cells says", host.said());
    golden.expect("What is there before a save", host.home.read(tests::FakeHost::prefs));
    window.startQuil.sendAction();
    golden.expect("What Start says", host.said());
    golden.expect("What is saved", host.home.read(tests::FakeHost::prefs));
  }
}

}  // namespace editor
