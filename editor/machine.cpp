#include "editor/machine.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <optional>

#include "platform/byte_count.h"
#include "platform/text.h"
#include "platform/translatable.h"

namespace editor {
namespace {

using platform::translatable;

constexpr std::int64_t bytesPerMegabyte = 1048576;

struct Processor {
  std::string_view cpu;
  std::string_view fpu;
};

// The values behind the entries of the processor button.
constexpr std::array<Processor, 5> processors = {
    {{"2", "false"}, {"2", "true"}, {"3", "false"}, {"3", "true"}, {"4", "true"}}};

std::string memoryText(std::int64_t bytes) {
  constexpr platform::ByteCountFormatter formatter{platform::ByteCountFormatter::CountStyle::memory,
                                                   false};
  return formatter.stringFromByteCount(bytes);
}

std::optional<std::int64_t> bytesOf(std::string_view megabytes) {
  const auto count = platform::parseInt64(megabytes);
  if (!count || *count < 1 ||
      *count > std::numeric_limits<std::int64_t>::max() / bytesPerMegabyte) {
    return std::nullopt;
  }
  return *count * bytesPerMegabyte;
}

// The number of rows when no row has the pair.
std::size_t entryOfPair(std::string_view cpu, std::string_view fpu) {
  if (fpu != "false" && fpu != "true") {
    return 0;
  }
  const auto* const found = std::find_if(
      processors.begin(), processors.end(),
      [&](const Processor& processor) { return processor.cpu == cpu && processor.fpu == fpu; });
  return static_cast<std::size_t>(found - processors.begin());
}

}  // namespace

void RomSetting::lookUp() {
  const std::string_view key = row().text;
  print("Searching for match for: ", key);
  const auto matches = group().preferences.settings.allContaining(key);
  print("All matches for -rom- : ", platform::listText(matches));

  std::string found(row().defaultValue);
  std::string line = document::Preferences::line(Key::rom, found);
  const bool isCdromLine = !matches.empty() && matches.front().find("nocdrom") != std::string::npos;
  if (isCdromLine) {
    print("no entry for rom, just nocdrom");
  }
  if (matches.empty() || isCdromLine) {
    print(key, " setting has value: ", line);
  } else {
    print("Setting for rom is: -", matches.front(), "-");
    const std::string_view match = document::withoutReturn(matches.front());
    const std::string_view rest = platform::dropCharacters(match, key.size());
    if (rest.empty()) {
      print("Setting has no value, newprefs: ", line);
    } else {
      found = rest;
      line = match;
      print("Setting has value: ", line);
    }
  }
  setValue(found);
  const bool isRomLine = !matches.empty() && !isCdromLine;
  group().preferences.noteFound(Key::rom, isRomLine ? std::optional(matches.front()) : std::nullopt,
                                found);
  group().preferences.newPrefs[indexOf(Key::rom)] = line;
  print("Rom Final Setting: ", line);
}

BootDriveSetting::BootDriveSetting(ControlGroup& group)
    : PopUpSetting(group, Key::bootdrive,
                   {translatable("Items", "Any drive"), translatable("Items", "Drive 1")},
                   {.heading = Announcement::Heading::named}) {}

std::size_t BootDriveSetting::entryOf(std::string_view value) const { return value == "0" ? 0 : 1; }

void BootDriveSetting::show() {
  PopUpSetting::show();
  setValue(entryOf(value()) == 0 ? "0" : "1");
}

void BootDriveSetting::startDevice(std::size_t index) {
  print(std::to_string(index));
  setValue(index == 0 ? "0" : "1");
}

RamSizeSetting::RamSizeSetting(ControlGroup& group)
    : ComboBoxSetting(group, Key::ramsize, {.heading = Announcement::Heading::named}) {
  box.setCompletes(true);
  box.addItems({"1024", "512", "256", "128", "64", "32", "16", "8", "4", "2"});
}

// The number is in the unit that suits the size: a file with 1073741824 shows "1", for 1 GB.
void RamSizeSetting::fill() {
  const auto bytes = platform::parseInt64(value());
  if (!bytes) {
    box.enterText(value());
    return;
  }
  const std::string text = memoryText(*bytes);
  if (!platform::parseInt64(text)) {
    fileSizes_[text] = value();
  }
  selectOrAdd(box, text);
}

// A size of the list is shown as it stands there, in megabytes.
void RamSizeSetting::show() {
  if (!box.selectItemWithText(shownText(value()))) {
    fill();
  }
}

std::string RamSizeSetting::shownText(std::string_view value) const {
  const auto bytes = platform::parseInt64(value);
  if (!bytes) {
    return std::string(value);
  }
  return *bytes % bytesPerMegabyte == 0 ? std::to_string(*bytes / bytesPerMegabyte)
                                        : memoryText(*bytes);
}

bool RamSizeSetting::knows(std::string_view value) const {
  const auto bytes = platform::parseInt64(value);
  return bytes && *bytes > 0;
}

void RamSizeSetting::ramSize() {
  ComboBoxSetting::edited();
  print(std::to_string(bytesPerMegabyte));
  const auto shown = platform::parseInt64(box.stringValue());
  print(shown ? "Optional(" + std::to_string(*shown) + ")" : "nil");
  print(value());
}

void RamSizeSetting::typed(const std::string& text) {
  const auto bytes = bytesOf(text);
  if (!bytes) {
    show();
    return;
  }
  setValue(std::to_string(*bytes));
  print(value());
  box.addItem(text);
}

void RamSizeSetting::chosen(std::size_t index) {
  const std::string& entry = box.items()[index];
  if (const auto megabytes = platform::parseInt64(entry)) {
    setValue(std::to_string(*megabytes * bytesPerMegabyte));
  } else if (const auto known = fileSizes_.find(entry); known != fileSizes_.end()) {
    setValue(known->second);
  }
}

ModelSetting::ModelSetting(ControlGroup& group)
    : PopUpSetting(group, Key::modelid, {"Macintosh IIci", "Quadra 900"}) {}

std::size_t ModelSetting::entryOf(std::string_view value) const { return value == "14" ? 1 : 0; }

void ModelSetting::modelID(std::size_t index) {
  print(std::to_string(index));
  if (index <= 1) {
    setValue(index == 0 ? "5" : "14");
  }
}

ProcessorSetting::ProcessorSetting(ControlGroup& group)
    : PopUpSetting(group, Key::fpu,
                   {"68020", translatable("Items", "68020 with FPU"), "68030",
                    translatable("Items", "68030 with FPU"), "68040"}) {}

std::size_t ProcessorSetting::entryOf(std::string_view fpu) const {
  return entryOfPair(cpu(), fpu);
}

bool ProcessorSetting::knowsProcessor(std::string_view processor) const {
  return !knows(value()) || entryOfPair(processor, value()) < processors.size();
}

// A pair that stands in no row shows the first entry, as a new window does.
void ProcessorSetting::show() {
  const std::size_t entry = entryOf(value());
  button.selectItem(entry < processors.size() ? entry : 0);
}

std::string ProcessorSetting::shownPair(std::string_view cpu, std::string_view fpu) const {
  const std::size_t entry = entryOfPair(cpu, fpu);
  return entry < processors.size() ? button.items()[entry]
                                   : std::string("cpu ").append(cpu).append(", fpu ").append(fpu);
}

std::string ProcessorSetting::shownText(std::string_view fpu) const {
  return shownPair(cpu(), fpu);
}

std::string ProcessorSetting::shownDefault() const {
  return shownPair(document::rowOf(Key::cpu).defaultValue, row().defaultValue);
}

bool ProcessorSetting::isDefault() const {
  return PopUpSetting::isDefault() && cpu() == document::rowOf(Key::cpu).defaultValue;
}

std::vector<std::string> ProcessorSetting::linesToSave() const {
  return {document::Preferences::line(Key::cpu, cpu()), PopUpSetting::linesToSave().front()};
}

void ProcessorSetting::reset() {
  group().preferences.setValue(Key::cpu, std::string(document::rowOf(Key::cpu).defaultValue));
  PopUpSetting::reset();
}

std::string CpuSetting::shownText(std::string_view value) const {
  return processor_.shownPair(value, group().preferences.value(Key::fpu));
}

void ProcessorSetting::cpuType(std::size_t index) {
  print(std::to_string(index));
  group().preferences.setValue(Key::cpu, std::string(processors[index].cpu));
  setValue(std::string(processors[index].fpu));
  print(processors[index].cpu);
  print(processors[index].fpu);
}

}  // namespace editor
