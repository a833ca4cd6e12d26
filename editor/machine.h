#pragma once

#include <map>
#include <string>
#include <vector>

#include "editor/shapes.h"

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
  void fill() override;
  void chosen(std::size_t index) override { startDevice(index); }

 private:
  void startDevice(std::size_t index);
};

/// The memory: bytes in the file, megabytes in the box.
class RamSizeSetting : public ComboBoxSetting {
 public:
  explicit RamSizeSetting(ControlGroup& group);

  [[nodiscard]] std::string shownDefault() const override;
  [[nodiscard]] bool knows(std::string_view value) const override;
  [[nodiscard]] std::vector<std::string> shown() const override { return {box.stringValue()}; }

 protected:
  void showValue() override { showStoredSize(); }
  void fill() override;
  void typed(const std::string& text) override;
  void chosen(std::size_t index) override;
  void edited() override { ramSize(); }

 private:
  void ramSize();
  void showStoredSize();

  std::vector<std::string> ramSizes_;
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

/// The processor and its floating-point unit: two keys behind one button. This is the place of the
/// second one; the first is looked up before.
class ProcessorSetting : public PopUpSetting {
 public:
  explicit ProcessorSetting(ControlGroup& group);

  [[nodiscard]] Key explainedKey() const override { return Key::cpu; }
  [[nodiscard]] bool knows(std::string_view value) const override {
    return value == "true" || value == "false";
  }
  /// Whether there is an entry for a processor with the present value of this key.
  [[nodiscard]] bool knowsProcessor(std::string_view cpu) const;
  [[nodiscard]] std::string shownDefault() const override;

 protected:
  [[nodiscard]] std::size_t entryOf(std::string_view value) const override;
  void showValue() override;
  void fill() override;
  void chosen(std::size_t index) override { cpuType(index); }

 private:
  static std::size_t entryOf(std::string_view cpu, std::string_view fpu);
  void cpuType(std::size_t index);
};

/// The processor's own key. The button of the other one shows both.
class CpuSetting : public Setting {
 public:
  CpuSetting(ControlGroup& group, const ProcessorSetting& button)
      : Setting(group, Key::cpu, {.form = Announcement::Form::value}), button_(button) {}

  [[nodiscard]] bool knows(std::string_view value) const override {
    return button_.knowsProcessor(value);
  }
  [[nodiscard]] std::vector<std::string> shown() const override { return button_.shown(); }

 private:
  const ProcessorSetting& button_;
};

/// What the emulated machine consists of.
class MachineGroup : public ControlGroup {
 public:
  using ControlGroup::ControlGroup;

  RomSetting romFile{*this};
  FileButton browseROM{"browseROM", romFile, panels};
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
