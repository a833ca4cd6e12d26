// What a person can do in the settings window, in any order.

#include "fuzz/support.h"
#include "fuzz/use.h"

// Waiting for the disk would leave no time for anything else.
extern "C" int fsync(int /*file*/) { return 0; }

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static tests::FakeHost host;
  std::filesystem::remove(host.home.path(tests::FakeHost::prefs));
  host.notifications = {};
  host.panels.shown.clear();
  editor::ViewController window(host.host());
  window.viewDidLoad();
  fuzz::ControlHand hand;
  std::size_t at = 0;
  fuzz::Use use(host, window, hand,
                [&](std::size_t count) { return at < size ? data[at++] % count : 0; });
  while (at < size) {
    fuzz::check(use.act(), use.broken().c_str());
  }
  use.save();
  fuzz::check(use.broken().empty(), use.broken().c_str());
  return 0;
}
