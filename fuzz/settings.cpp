// A preferences file: what a window reads from it, writes back and reads again.

#include "editor/view_controller.h"
#include "tests/support/fake_host.h"
#include "tests/support/fuzz.h"
#include "tests/support/model.h"

namespace {

using tests::check;
using tests::FakeHost;

/// Opens a window over the file and saves.
std::string savedOver(const std::string& file) {
  FakeHost host;
  host.home.write(FakeHost::prefs, file);
  editor::ViewController window(host.host());
  window.viewDidLoad();
  check(window.saved.changedKeys().empty() && !window.saved.volumesChanged(),
        "opening changes nothing");
  check(window.savePrefsAny(), "the file is written");
  const volumes::VolumeList& list = window.volumes.volumes();
  check(list.volName() == list.volLocal(), "two lists of the same locations");
  check(list.volSize().size() == list.size() && list.volType().size() == list.size(),
        "four lists of the same length");
  std::string saved = host.home.read(FakeHost::prefs);
  check(window.textToSave() == saved, "a second save changes nothing");
  return saved;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string file = tests::textOf(data, size);
  const std::string saved = savedOver(file);
  check(saved == tests::Model(file).text(), "what is saved is what was read");
  const std::string again = savedOver(saved);
  check(again == tests::Model(saved).text(), "what was saved is read by the same rule");
  return 0;
}
