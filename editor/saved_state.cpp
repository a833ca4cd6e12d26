#include "editor/saved_state.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace editor {
namespace {

bool sharesControl(Key one, Key other) {
  return one == other || (!outletOf(one).empty() && outletOf(one) == outletOf(other));
}

using Locations = std::vector<platform::Location>;
using Texts = std::vector<std::string_view>;

// Those of `list`, in its order, that have a counterpart in `other`.
Texts inBoth(const Locations& list, const Locations& other) {
  std::unordered_map<std::string_view, std::size_t> left;
  for (const platform::Location& location : other) {
    ++left[location.text()];
  }
  Texts kept;
  for (const platform::Location& location : list) {
    std::size_t& count = left[location.text()];
    if (count > 0) {
      --count;
      kept.push_back(location.text());
    }
  }
  return kept;
}

}  // namespace

void SavedState::remember() {
  values_ = valuesToSave();
  entries_ = volumes_.volumes().entries();
  revision_ = volumes_.tableView.revision();
}

std::array<std::string, document::keyCount> SavedState::valuesToSave() const {
  std::array<std::string, document::keyCount> values;
  std::transform(settings_.begin(), settings_.end(), values.begin(),
                 [](const Setting* setting) { return setting->valueToSave(); });
  return values;
}

std::vector<Key> SavedState::changedKeys() const {
  std::vector<Key> changed;
  for (const Setting* const setting : settings_) {
    if (setting->valueToSave() != savedValue(setting->key())) {
      changed.push_back(setting->key());
    }
  }
  return changed;
}

std::vector<Change> SavedState::changes() const {
  std::vector<Change> changes;
  for (const Key key : changedKeys()) {
    if (!changes.empty() && sharesControl(changes.back().key, key)) {
      continue;
    }
    const Setting& setting = settingOf(key);
    // shownText() of one key of the pair uses the present value of the other key.
    const std::string was =
        sharesControl(key, Key::fpu)
            ? machine_.cpuType.shownPair(savedValue(Key::cpu), savedValue(Key::fpu))
            : setting.shownText(savedValue(key));
    changes.push_back({key, was, setting.shownValue()});
  }
  return changes;
}

// Comparing thousands of locations is left out while nothing has touched the table.
bool SavedState::volumesChanged() const {
  return volumes_.tableView.revision() != revision_ &&
         volumes_.volumes().volName() != entries_.locations;
}

VolumeChanges SavedState::volumeChanges() const {
  if (!volumesChanged()) {
    return {};
  }
  const auto& before = entries_.locations;
  const auto& now = volumes_.volumes().volName();
  const Texts keptBefore = inBoth(before, now);
  const Texts keptNow = inBoth(now, before);
  return {.added = now.size() - keptNow.size(),
          .removed = before.size() - keptBefore.size(),
          .moved = keptBefore != keptNow};
}

void SavedState::putBack(Key key) {
  for (Setting* const setting : settings_) {
    if (sharesControl(setting->key(), key)) {
      setting->change(savedValue(setting->key()));
    }
  }
}

void SavedState::putVolumesBack() { volumes_.restore(entries_); }

void SavedState::putAllBack() {
  for (const Change& change : changes()) {
    putBack(change.key);
  }
  if (volumesChanged()) {
    putVolumesBack();
  }
}

}  // namespace editor
