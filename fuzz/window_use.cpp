// What a person can do to the settings, in any order.

#include "tests/support/edits.h"
#include "tests/support/fake_host.h"
#include "tests/support/fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using tests::Key;
  tests::FakeHost host;
  editor::ViewController window(host.host());
  tests::Model model("");
  const auto save = [&] {
    window.startQuil.sendAction();
    const std::string file = host.home.read(tests::FakeHost::prefs);
    tests::check(file == model.text(), file + "=== is not ===\n" + model.text());
    tests::check(window.saved.changedKeys().empty(), "all is saved");
  };
  const auto reset = [&](Key key) {
    window.settingsInKeyOrder().at(document::indexOf(key))->reset();
    // The two keys behind the processor go back together.
    for (const Key each : {key, key == Key::fpu ? Key::cpu : key}) {
      model[each] = document::rowOf(each).defaultValue;
    }
  };
  window.viewDidLoad();
  for (std::size_t at = 0; at + 1 < size; at += 2) {
    const std::size_t number = data[at + 1];
    if (data[at] % 8 == 0) {
      save();
    } else if (data[at] % 8 == 1) {
      reset(static_cast<Key>(number % model.values.size()));
    } else {
      const tests::Case& edit = tests::edits().at(number % tests::edits().size());
      tests::perform(edit, window);
      tests::apply(edit, model);
    }
  }
  save();
  return 0;
}
