#pragma once

#include <algorithm>
#include <functional>
#include <utility>

#include "app/prefs_view_controller.h"
#include "editor/view_controller.h"
#include "fuzz/model.h"
#include "tests/support/fake_host.h"
#include "volumes/create_view_controller.h"

namespace fuzz {

/// Does things to the controls themselves, without a window.
struct ControlHand {
  static bool click(platform::Button& button) {
    button.edit([&] { button.setOn(!button.isOn()); });
    return true;
  }
  static bool type(platform::ComboBox& box, const std::string& text) {
    box.edit([&] { box.enterText(text); });
    return true;
  }
  static bool type(platform::TextField& field, const std::string& text) {
    if (auto* const box = dynamic_cast<platform::ComboBox*>(&field)) {
      return type(*box, text);
    }
    if (field.isEnabled()) {
      field.edit([&] { field.setStringValue(text); });
    }
    return field.isEnabled();
  }
  template <typename Control>
  static void choose(Control& control, std::size_t entry) {
    control.edit([&] { control.selectItem(entry); });
  }
  static void step(platform::Stepper& stepper, int by) {
    const auto& range = stepper.range();
    stepper.edit([&] {
      stepper.setIntegerValue(
          std::clamp(stepper.integerValue() + by, range.minimum, range.maximum));
    });
  }
  static void select(volumes::VolumeTable& table, std::size_t row) {
    table.tableView.selectRows({row});
  }
  static void move(volumes::VolumeTable& table, bool up) {
    up ? table.moveSelectionUp() : table.moveSelectionDown();
  }
};

/// Does what a person could do, as numbers decide, and compares each file saved with the model. A
/// hand does each thing and tells whether it could be done.
template <typename Hand>
class Use {
 public:
  using Key = document::Key;

  /// `numbers` gives a number below the one that it is given, which is not 0.
  Use(tests::FakeHost& host, editor::ViewController& window, Hand& hand,
      std::function<std::size_t(std::size_t)> numbers)
      : any_(std::move(numbers)),
        host_(host),
        window_(window),
        hand_(hand),
        model_(host.home.read(tests::FakeHost::prefs)) {
    addBoxes();
    addTexts();
    addChoices();
    addScreen();
    addVolumes();
    actions_.push_back([this] { save(); });
    actions_.push_back([this] {
      const Key key = resettable_.at(any_(resettable_.size()));
      window_.settingsInKeyOrder().at(document::indexOf(key))->reset();
      model_[key] = document::rowOf(key).defaultValue;
      model_[Key::cpu] = key == Key::fpu ? "3" : model_[Key::cpu];
    });
    addChoosers();
    addOthers();
  }

  /// Does one thing; returns whether all promises have been kept so far.
  bool act() {
    actions_.at(any_(actions_.size()))();
    host_.output.text.clear();
    return broken_.empty();
  }

  void save() {
    hand_.click(window_.savePrefs);
    checkSaved();
  }

  [[nodiscard]] int saves() const { return saves_; }

  /// The first promise that was broken; empty when none was.
  [[nodiscard]] const std::string& broken() const { return broken_; }

 private:
  void promise(bool kept, const std::string& text) {
    if (!kept && broken_.empty()) {
      broken_ = text;
    }
  }

  void checkSaved() {
    const std::string file = host_.home.read(tests::FakeHost::prefs);
    promise(file == model_.text(), file + "=== is not ===\n" + model_.text());
    promise(window_.changedKeys().empty() && !window_.volumesChanged(), "all is saved");
    ++saves_;
  }

  std::string anyText() {
    const std::vector<std::string> texts = {"",
                                            " ",
                                            "x y",
                                            "/a/rom b",
                                            "cpu 4",
                                            "disk /x",
                                            "1",
                                            "007",
                                            "-5",
                                            "+12",
                                            "1.5",
                                            "a/b",
                                            "Maximum",
                                            "e\xcc\x81",
                                            "\xf0\x9f\x98\x80",
                                            "99999999999999999999",
                                            std::string(300, 'l')};
    return texts.at(any_(texts.size()));
  }

  void addBoxes() {
    for (editor::CheckBoxSetting* const setting : std::initializer_list<editor::CheckBoxSetting*>{
             &window_.network.tunnelUDP, &window_.machine.stateCDROM, &window_.input.disableSound,
             &window_.input.rawKeys, &window_.jit.enableJIT, &window_.jit.compileFPU,
             &window_.jit.lazyFlush, &window_.jit.inlineBlocks, &window_.jit.ignoreSegV,
             &window_.jit.dontUseCPU}) {
      resettable_.push_back(setting->key());
      actions_.push_back([this, setting] {
        std::string& value = model_[setting->key()];
        if (hand_.click(setting->box)) {
          value = value == "false" ? "true" : "false";
        }
      });
    }
    for (auto* const steps : {&window_.network.portUDP, &window_.input.mouseScroll}) {
      resettable_.push_back(steps->key());
      actions_.push_back([this, steps] {
        const int step = any_(2) == 0 ? -1 : 1;
        const auto& range = steps->stepper.range();
        std::string& value = model_[steps->key()];
        value = std::to_string(std::clamp(std::stoi(value) + step, range.minimum, range.maximum));
        hand_.step(steps->stepper, step);
      });
    }
  }

  void addTexts() {
    const auto add = [this](platform::TextField& field, Key key) {
      resettable_.push_back(key);
      actions_.push_back([this, &field, key] {
        const std::string text = anyText();
        model_[key] = hand_.type(field, text) ? text : model_[key];
      });
    };
    add(window_.sharedFolder.unixRootPath.field, Key::extfs);
    add(window_.machine.romFile.field, Key::rom);
    add(window_.input.rawKeyFile.field, Key::keycodefile);
    add(window_.input.audioOut.field, Key::dsp);
    add(window_.input.audioMix.field, Key::mixer);
    add(window_.network.modemPort.box, Key::seriala);
    add(window_.network.printerPort.box, Key::serialb);
    add(window_.network.etherPort.box, Key::ether);
    add(window_.jit.jitCache.box, Key::jitcachesize);
    actions_.push_back([this] { choose(window_.jit.jitCache.box, model_[Key::jitcachesize]); });
    resettable_.push_back(Key::ramsize);
    actions_.push_back([this] {
      const std::string text = anyText();
      hand_.type(window_.machine.ramSizeMB.box, text);
      const auto bytes = text == "1" ? 1 : text == "007" ? 7 : text == "+12" ? 12 : 0;
      model_[Key::ramsize] = bytes > 0 ? std::to_string(bytes << 20) : model_[Key::ramsize];
    });
    actions_.push_back([this] {
      std::string megabytes;
      choose(window_.machine.ramSizeMB.box, megabytes);
      model_[Key::ramsize] = std::to_string(std::stol(megabytes) << 20);
    });
  }

  void choose(platform::ComboBox& box, std::string& value) {
    const std::size_t entry = any_(box.items().size());
    value = box.items().at(entry);
    hand_.choose(box, entry);
  }

  void addChoices() {
    const auto add = [this](platform::PopUpButton& button, Key key,
                            const std::vector<std::string>& values) {
      resettable_.push_back(key);
      actions_.push_back([this, &button, key, values] {
        const std::size_t entry = any_(values.size());
        hand_.choose(button, entry);
        model_[key] = values.at(entry);
      });
    };
    add(window_.machine.stateStart.button, Key::bootdrive, {"0", "1"});
    add(window_.machine.modelID.button, Key::modelid, {"5", "14"});
    add(window_.input.mouseWheel.button, Key::mousewheelmode, {"0", "1"});
    add(window_.display.refreshRate.button, Key::frameskip, {"0", "1", "2", "4", "6", "8", "12"});
    resettable_.push_back(Key::fpu);
    actions_.push_back([this] {
      const std::size_t entry = any_(5);
      hand_.choose(window_.machine.cpuType.button, entry);
      model_[Key::cpu] = std::to_string(2 + entry / 2);
      model_[Key::fpu] = entry % 2 == 1 || entry == 4 ? "true" : "false";
    });
  }

  // Not reset here: the parts are told by the action alone.
  void addScreen() {
    editor::ScreenSetting& screen = window_.display.screen;
    const auto set = [this](std::string& part, const std::string& text) {
      part = text;
      model_.setScreen(type_, width_, height_);
    };
    actions_.push_back([this, set, &screen] {
      const std::size_t entry = any_(2);
      hand_.choose(screen.screenType, entry);
      set(type_, entry == 0 ? "win" : "dga");
    });
    const auto addSize = [this, set](platform::ComboBox& box, std::string& part) {
      actions_.push_back([this, set, &box, &part] {
        const std::string text = anyText();
        hand_.type(box, text);
        set(part, text);
      });
      actions_.push_back([this, set, &box, &part] {
        std::string text;
        choose(box, text);
        set(part, text);
      });
    };
    addSize(screen.screenWidth, width_);
    addSize(screen.screenHeight, height_);
  }

  void addVolumes() {
    actions_.push_back([this] {
      if (model_.disks.size() < 12) {
        model_.disks.push_back(host_.home.write("disk " + std::to_string(any_(5)) + ".dsk", "x"));
        host_.panels.answers.push_back({platform::Location::fromPath(model_.disks.back())});
        hand_.click(window_.volumes.browseFile);
      }
    });
    actions_.push_back([this] {
      if (!model_.disks.empty()) {
        const std::size_t row = any_(model_.disks.size());
        hand_.select(window_.volumes, row);
        hand_.click(window_.volumes.removeVol);
        model_.disks.erase(std::find(model_.disks.begin(), model_.disks.end(), model_.disks[row]));
      }
    });
    actions_.push_back([this] {
      if (model_.disks.size() > 1) {
        const std::size_t row = any_(model_.disks.size() - 1);
        const bool up = any_(2) == 1;
        hand_.select(window_.volumes, up ? row + 1 : row);
        hand_.move(window_.volumes, up);
        std::swap(model_.disks[row], model_.disks[row + 1]);
      }
    });
    actions_.push_back([this] { hand_.click(window_.volumes.ronMode); });
  }

  // A panel answers with a path, or is cancelled.
  void addChoosers() {
    const auto add = [this](platform::Button& button, Key key) {
      actions_.push_back([this, &button, key] {
        const std::string path = host_.home.path("a b%" + std::to_string(any_(3)));
        if (any_(3) > 0) {
          host_.panels.answers.push_back({platform::Location::fromPath(path)});
          model_[key] = path;
        }
        hand_.click(button);
      });
    };
    add(window_.sharedFolder.unixRoot, Key::extfs);
    add(window_.machine.browseROM.button, Key::rom);
    add(window_.input.rawKeyFileSelect.button, Key::keycodefile);
  }

  // What leaves the settings as they are.
  void addOthers() {
    actions_.push_back([this] { hand_.click(window_.copyPrefs); });
    actions_.push_back([this] {
      if (window_.startQuil.isEnabled()) {
        hand_.click(window_.startQuil);
        checkSaved();
      }
    });
    actions_.push_back([this] { usePreferences(); });
    actions_.push_back([this] {
      volumes::createViewController sheet(host_.output);
      app::sharedVar::pathToQuilRoot = host_.home.path() + "/";
      sheet.viewWillAppear();
      for (int turn = 0; turn < 2; ++turn) {
        sheet.createName.edit(
            [&] { sheet.createName.setStringValue(turn == 0 ? anyText() : "x"); });
        sheet.createSize.edit([&] { sheet.createSize.setStringValue(std::to_string(any_(2))); });
        sheet.createImage.sendAction();
      }
      promise(sheet.createStatus.stringValue().find("Status: ") == 0, "a status");
    });
  }

  void usePreferences() {
    app::prefsViewController preferences(host_.host());
    preferences.viewWillAppear();
    platform::Button* const modes[] = {&preferences.quilOff, &preferences.quilLocal,
                                       &preferences.quilCustom};
    platform::Button& mode = *modes[any_(3)];
    mode.edit([&] { mode.setOn(true); });
    if (preferences.Quillon.isEnabled()) {
      const std::string text = any_(2) == 0 ? anyText() : "/my/Quillon.app";
      preferences.Quillon.edit([&] { preferences.Quillon.setStringValue(text); });
    }
    preferences.testLaunch.sendAction();
    const bool shown = any_(2) == 1;
    preferences.SCSItab.edit([&] { preferences.SCSItab.setOn(shown); });
    preferences.quitOnStart.edit([&] { preferences.quitOnStart.setOn(any_(2) == 1); });
    preferences.Done.sendAction();
    promise(window_.tabs.tabViewC.numberOfTabViewItems() == (shown ? 7U : 6U), "a SCSI tab");
    promise(window_.startQuil.isEnabled() == app::sharedVar::startState, "a button to start");
  }

  std::function<std::size_t(std::size_t)> any_;
  tests::FakeHost& host_;
  editor::ViewController& window_;
  Hand& hand_;
  Model model_;
  std::string type_ = "win", width_ = "1024", height_ = "768";
  std::vector<std::function<void()>> actions_;
  std::vector<Key> resettable_;
  int saves_ = 0;
  std::string broken_;
};

}  // namespace fuzz
