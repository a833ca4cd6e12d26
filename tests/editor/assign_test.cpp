#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "tests/support/fake_host.h"
#include "tests/support/golden.h"
#include "tests/support/shown.h"

namespace editor {
namespace {

/// The lines of `after` that are not in `before`.
std::string changes(const std::string& before, const std::string& after) {
  std::string changed;
  std::istringstream lines(after);
  for (std::string line; std::getline(lines, line);) {
    changed += before.find(line + "\n") == std::string::npos ? "    " + line + "\n" : "";
  }
  return changed;
}

// In one window: a control may not keep anything of the value before.
TEST(Assign, StoresTheValueAndShowsIt) {
  tests::FakeHost host;
  ViewController window(host.host());
  window.viewDidLoad();
  tests::Golden golden("assigned.txt", host.home.path());
  std::istringstream lines(golden.section("Assigned one after the other"));
  std::string shown;
  std::set<Key> assigned;
  tests::Model model("");
  for (std::string line; std::getline(lines, line);) {
    const Key key = tests::keyOf(line);
    const std::string before = tests::shownBy(window);
    model[key] = line.substr(line.find(' ') + 1);
    Setting& setting = *window.settingsInKeyOrder().at(document::indexOf(key));
    setting.assign(model[key]);
    shown += line + " is shown as " + setting.shownValue() + "\n" +
             changes(before, tests::shownBy(window));
    EXPECT_TRUE(window.savePrefsAny());
    EXPECT_EQ(host.home.read(tests::FakeHost::prefs), model.text()) << line;
    assigned.insert(key);
  }
  EXPECT_EQ(assigned.size(), document::keyCount) << "every setting has its turn";
  golden.expect("What is shown", shown);
}

TEST(Assign, AKeyWithoutASettingOrWithTwoIsNamedAtOnce) {
  tests::FakeHost host;
  const ViewController window(host.host());
  EXPECT_DEATH(settingsByKey({&window.jit}), "No setting for the key extfs");
  EXPECT_DEATH(settingsByKey({&window.jit, &window.jit}),
               "Two settings for the key noclipconversion");
}

}  // namespace
}  // namespace editor
