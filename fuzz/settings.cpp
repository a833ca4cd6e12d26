// A preferences file: what a window reads from it, writes back and reads again.

#include "editor/view_controller.h"
#include "fuzz/model.h"
#include "fuzz/support.h"
#include "tests/support/fake_host.h"

namespace {

constexpr const char* fileName = ".quillon_prefs";

/// Opens a window over the file in the folder and saves.
std::string savedBy(const fuzz::Folder& folder) {
  fuzz::SwallowingOutput output;
  tests::FakePanels panels;
  tests::FakeWorkspace workspace(output);
  tests::FakeApplication application(output);
  platform::NotificationCenter notifications;
  editor::ViewController window({folder.path(), folder.path(".config"),
                                 platform::Bundle(folder.path("None.app")), output, panels,
                                 workspace, application, notifications});
  window.viewDidLoad();
  fuzz::check(window.changedKeys().empty() && !window.volumesChanged(), "opening changes nothing");
  fuzz::check(window.savePrefsAny(), "the file is written");
  std::string saved = folder.read(fileName);
  fuzz::check(window.textToSave() == saved,
              "a second save changes nothing");
  return saved;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fuzz::Folder folder;
  const std::string file = fuzz::textOf(data, size);
  folder.write(fileName, file);
  const fuzz::Model model(file);
  const std::string saved = savedBy(folder);
  fuzz::check(saved == model.text(), "what is saved is what was read");
  const std::string again = savedBy(folder);
  fuzz::check(again == fuzz::Model(saved).text(), "what was saved is read by the same rule");
  fuzz::check(again == saved || !model.isUnambiguous(), "what was saved reads back equal");
  return 0;
}
