// Numbers as texts: byte counts as people read them, and sizes of memory as people type them.

#include <cmath>
#include <cstring>

#include "editor/machine.h"
#include "fuzz/support.h"
#include "platform/byte_count.h"
#include "platform/text.h"
#include "tests/support/fake_host.h"

namespace {

using platform::ByteCountFormatter;

void checkByteCount(std::int64_t bytes, ByteCountFormatter::CountStyle style) {
  static constexpr const char* units[] = {"KB", "MB", "GB", "TB", "PB", "EB"};
  const long double base = style == ByteCountFormatter::CountStyle::memory ? 1024 : 1000;
  const std::string text = ByteCountFormatter{style, true}.stringFromByteCount(bytes);
  const std::string bare = ByteCountFormatter{style, false}.stringFromByteCount(bytes);
  fuzz::check(text.starts_with(bare + " "), "the unit is all that can be left out");
  if (bytes == 0) {
    return;
  }
  long double factor = 1;
  long double step = 1;
  for (std::size_t unit = 0; unit < std::size(units); ++unit) {
    if (text.ends_with(std::string(" ") + units[unit])) {
      factor = std::pow(base, static_cast<long double>(unit + 1));
      step = unit == 0 ? 1 : unit == 1 ? 0.1L : 0.01L;
    }
  }
  const long double shown = std::stold(bare);
  const long double exact = static_cast<long double>(bytes) / factor;
  fuzz::check(std::abs(shown - exact) <= step * 0.5000001L, "rounded to the nearest step");
  fuzz::check(std::abs(shown) < base || text.ends_with("EB"), "in the largest unit there is");
}

void checkMemorySize(const std::string& fileValue, const std::string& typed, std::uint8_t entry) {
  fuzz::SwallowingOutput output;
  tests::FakePanels panels;
  document::Preferences preferences("/nowhere", output);
  preferences.settings = document::Lines("ramsize " + fileValue + "\n");
  editor::MachineGroup machine(preferences, output, panels);
  auto& box = machine.ramSizeMB.box;
  const auto value = [&] { return preferences.value(editor::Key::ramsize); };
  machine.ramSizeMB.load();
  const std::string loaded = value();
  box.edit([&] { box.enterText(typed); });
  const auto megabytes = platform::parseInt64(typed);
  const bool fits = megabytes && *megabytes > 0 && *megabytes <= (INT64_MAX >> 20);
  fuzz::check(value() == (fits ? std::to_string(*megabytes << 20) : loaded),
              "megabytes are stored in bytes, and nothing else is stored");
  if (!box.items().empty()) {
    const std::string before = value();
    const std::size_t index = entry % box.items().size();
    box.edit([&] { box.selectItem(index); });
    const auto chosen = platform::parseInt64(box.items()[index]);
    fuzz::check(chosen ? value() == std::to_string(*chosen * (1 << 20))
                       : value() == before || value() == loaded,
                "an entry stands for its size");
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = fuzz::textOf(data, size);
  std::int64_t bytes = 0;
  std::memcpy(&bytes, data, std::min(size, sizeof bytes));
  for (const std::int64_t count : {bytes, platform::parseInt64(text).value_or(0)}) {
    checkByteCount(count, ByteCountFormatter::CountStyle::file);
    checkByteCount(count, ByteCountFormatter::CountStyle::memory);
  }
  // Two texts without a line feed: what is in the file and what is typed.
  const std::string line = text.substr(0, text.find('\n'));
  const std::string rest = line.size() < text.size() ? text.substr(line.size() + 1) : "";
  if (platform::isUtf8(text)) {
    checkMemorySize(line, rest.substr(0, rest.find('\n')), size > 0 ? data[size - 1] : 0);
  }
  return 0;
}
