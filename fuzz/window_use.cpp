// What a person can do in the settings window, in any order.

#include "tests/support/edits.h"
#include "tests/support/fake_host.h"
#include "tests/support/fuzz.h"

namespace {

class Use {
 public:
  Use() { window_.viewDidLoad(); }

  void act(std::uint8_t kind, std::uint8_t number) {
    const std::size_t disks = model_.disks.size();
    switch (kind % 8) {
      case 0:
        addDisk(number);
        break;
      case 1:
        if (disks > 0) {
          removeDisk(number % disks);
        }
        break;
      case 2:
        if (disks > 1) {
          moveDisk(number % (disks - 1), number % 2 == 0);
        }
        break;
      case 3:
        reset(static_cast<tests::Key>(number % model_.values.size()));
        break;
      case 4:
        save();
        break;
      default:
        const tests::Edit& edit = tests::edits.at(number % tests::edits.size());
        tests::perform(window_, edit);
        edit.applyTo(model_);
    }
  }

  void save() {
    window_.startQuil.sendAction();
    const std::string file = host_.home.read(tests::FakeHost::prefs);
    tests::check(file == model_.text(), file + "=== is not ===\n" + model_.text());
    tests::check(window_.saved.changedKeys().empty() && !window_.saved.volumesChanged(), "all is saved");
  }

 private:
  void addDisk(std::uint8_t number) {
    const std::string path = host_.home.write("disk " + std::to_string(number % 5), "x");
    model_.disks.push_back(path);
    host_.panels.answers.push_back({platform::Location::fromPath(path)});
    window_.volumes.browseFile.sendAction();
  }

  // The first entry of the same path goes.
  void removeDisk(std::size_t row) {
    window_.volumes.tableView.selectRows({row});
    window_.volumes.removeVol.sendAction();
    model_.disks.erase(std::find(model_.disks.begin(), model_.disks.end(), model_.disks[row]));
  }

  void moveDisk(std::size_t row, bool up) {
    window_.volumes.tableView.selectRows({up ? row + 1 : row});
    if (up) {
      window_.volumes.moveSelectionUp();
    } else {
      window_.volumes.moveSelectionDown();
    }
    std::swap(model_.disks[row], model_.disks[row + 1]);
  }

  // The two keys behind the processor go back together.
  void reset(tests::Key key) {
    window_.settingsInKeyOrder().at(document::indexOf(key))->reset();
    model_[key] = document::rowOf(key).defaultValue;
    if (key == tests::Key::fpu) {
      model_[tests::Key::cpu] = document::rowOf(tests::Key::cpu).defaultValue;
    }
  }

  tests::FakeHost host_;
  editor::ViewController window_{host_.host()};
  tests::Model model_{""};
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Use use;
  for (std::size_t at = 0; at + 1 < size; at += 2) {
    use.act(data[at], data[at + 1]);
  }
  use.save();
  return 0;
}
