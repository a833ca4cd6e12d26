// What is wrong with the texts of single settings, and with the lines that they are found in.

#include "checks/parts.h"
#include "document/lines.h"
#include "document/preferences.h"

namespace checks {
namespace {

using platform::translatable;

// A finding quotes the beginning of a line only: a line of the file may have megabytes.
std::string shortened(std::string_view text) {
  constexpr std::size_t most = 80;  // bytes
  if (text.size() <= most) {
    return std::string(text);
  }
  std::size_t end = most;
  while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xc0U) == 0x80U) {
    --end;  // in the middle of a character
  }
  return std::string(text.substr(0, end)) + "…";
}

std::string savedText(const State& state) {
  std::array<std::string, document::keyCount> values;
  for (const document::KeyRow& row : document::keyTable) {
    values[indexOf(row.key)] = state.value(row.key);
  }
  return document::Preferences::composed(state.disks, values);
}

}  // namespace

void checkValues(const State& state, Collector& found) {
  for (const document::KeyRow& row : document::keyTable) {
    const SettingState& setting = state.of(row.key);
    const std::string kept = shortened(document::Preferences::line(row.key, setting.value));
    if (!setting.isKnown) {
      found.add(Level::note, row.key,
                translatable("Checks",
                             "\"%1\" is nothing that this program knows. It shows \"%2\", "
                             "and a save keeps the line as it is."),
                kept, setting.shown);
    } else if (!setting.fileValueIsKnown) {
      found.add(Level::note, row.key,
                translatable("Checks",
                             "\"%1\" in the file is nothing that this program knows. It "
                             "shows \"%2\", and a save writes \"%3\"."),
                shortened(document::Preferences::line(row.key, setting.fileValue)), setting.shown,
                kept);
    }
  }
}

void checkLines(const State& state, Collector& found) {
  const document::Lines saved(savedText(state));
  const auto savedLines = saved.firstContaining(document::prefs);
  for (const document::KeyRow& row : document::keyTable) {
    const SettingState& setting = state.of(row.key);
    if (setting.foundLine && !setting.foundLine->starts_with(row.text)) {
      found.add(Level::warning, row.key,
                translatable("Checks",
                             "The value \"%1\" comes from a line that does not begin with "
                             "\"%2\": \"%3\"."),
                shortened(setting.value), std::string(nameOf(row.key)),
                shortened(*setting.foundLine));
    }
    const auto next = savedLines[document::indexOf(row.key)];
    if (next && *next != document::Preferences::line(row.key, setting.value)) {
      found.add(Level::warning, row.key,
                translatable("Checks",
                             "After a save the value of \"%1\" would be read from another "
                             "line: \"%2\"."),
                std::string(nameOf(row.key)), shortened(*next));
    }
  }
}

}  // namespace checks
