#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "editor/shapes.h"
#include "platform/translatable.h"

namespace editor {

/// The ROM file. Its key text is also part of every "nocdrom" line, which is no ROM file.
class RomSetting : public TextFieldSetting {
 public:
  explicit RomSetting(ControlGroup& group) : TextFieldSetting(group, Key::rom) {}

 protected:
  void lookUp() override;
};

class BootDriveSetting : public PopUpSetting {
 public:
  explicit BootDriveSetting(ControlGroup& group);

  [[nodiscard]] bool knows(std::string_view value) const override {
    return value == "0" || value == "1";
  }

 protected:
  [[nodiscard]] std::size_t entryOf(std::string_view value) const override;
  void show() override;
  void chosen(std::size_t index) override { startDevice(index); }

 private:
  void startDevice(std::size_t index);
};

/// The memory: bytes in the file, megabytes in the box.
class RamSizeSetting : public ComboBoxSetting {
 public:
  explicit RamSizeSetting(ControlGroup& group);

  [[nodiscard]] bool knows(std::string_view value) const override;
  [[nodiscard]] std::vector<std::string> shown() const override { return {box.stringValue()}; }

  /// In megabytes where it is a whole number of them.
  [[nodiscard]] std::string shownText(std::string_view value) const override;

 protected:
  void fill() override;
  void show() override;
  void typed(const std::string& text) override;
  void chosen(std::size_t index) override;
  void edited() override { ramSize(); }

 private:
  void ramSize();

  std::map<std::string, std::string> fileSizes_;  // bytes of the entries that are no whole number
};

class ModelSetting : public PopUpSetting {
 public:
  explicit ModelSetting(ControlGroup& group);

  [[nodiscard]] bool knows(std::string_view value) const override {
    return value == "5" || value == "14";
  }

 protected:
  [[nodiscard]] std::size_t entryOf(std::string_view value) const override;
  void chosen(std::size_t index) override { modelID(index); }

 private:
  void modelID(std::size_t index);
};

/// The processor and its floating-point unit: two keys behind one button. This is the setting of
/// the second one, which is looked up when the first is known.
class ProcessorSetting : public PopUpSetting {
 public:
  explicit ProcessorSetting(ControlGroup& group);

  [[nodiscard]] Key explainedKey() const override { return Key::cpu; }
  [[nodiscard]] bool knows(std::string_view value) const override {
    return value == "true" || value == "false";
  }
  /// Whether there is an entry for a processor with the present value of this key.
  [[nodiscard]] bool knowsProcessor(std::string_view processor) const;
  [[nodiscard]] std::string shownText(std::string_view fpu) const override;
  [[nodiscard]] std::string shownDefault() const override;

  [[nodiscard]] bool isDefault() const override;
  [[nodiscard]] std::vector<std::string> linesToSave() const override;

  /// What the button shows for a pair of values.
  [[nodiscard]] std::string shownPair(std::string_view cpu, std::string_view fpu) const;

  /// Resets both keys.
  void reset() override;

  void show() override;

 protected:
  [[nodiscard]] std::size_t entryOf(std::string_view fpu) const override;
  void chosen(std::size_t index) override { cpuType(index); }

 private:
  [[nodiscard]] std::string_view cpu() const { return group().preferences.value(Key::cpu); }
  void cpuType(std::size_t index);
};

/// The processor's own key, which the button of the other one shows.
class CpuSetting : public Setting {
 public:
  CpuSetting(ControlGroup& group, ProcessorSetting& processor)
      : Setting(group, Key::cpu, {.form = Announcement::Form::value}), processor_(processor) {}

  [[nodiscard]] bool knows(std::string_view value) const override {
    return processor_.knowsProcessor(value);
  }
  [[nodiscard]] std::vector<std::string> shown() const override { return processor_.shown(); }
  [[nodiscard]] std::string shownText(std::string_view value) const override;

 protected:
  // Nothing at start-up: fpu, the other half of the pair, is looked up after cpu, and fills.
  void fill() override {}
  void show() override { processor_.show(); }

 private:
  ProcessorSetting& processor_;
};

/// What the emulated machine consists of.
class MachineGroup : public ControlGroup {
 public:
  using ControlGroup::ControlGroup;

  RomSetting romFile{*this};
  FileButton browseROM{"browseROM", romFile, panels,
                       platform::translatable("Panels", "Choose the ROM File")};
  BootDriveSetting stateStart{*this};
  Setting bootdriver{*this, Key::bootdriver};
  RamSizeSetting ramSizeMB{*this};
  ModelSetting modelID{*this};
  ProcessorSetting cpuType{*this};
  CpuSetting cpu{*this, cpuType};
  CheckBoxSetting stateCDROM{*this,
                             Key::nocdrom,
                             CheckBoxSetting::Echo::stateOnOff,
                             {.form = Announcement::Form::optional, .label = "nocdrom: "}};
};

}  // namespace editor
