#pragma once

#include <array>
#include <string>
#include <vector>

#include "editor/machine.h"
#include "editor/setting.h"
#include "volumes/volume_table.h"

namespace editor {

/// A control that shows another value than the one last read or saved.
struct Change {
  Key key;          // the first of those behind the control
  std::string was;  // both as the control shows them
  std::string is;
};

/// How the list of disk images differs from the one last read or saved.
struct VolumeChanges {
  std::size_t added = 0;
  std::size_t removed = 0;
  bool moved = false;  // those in both lists stand in another order

  [[nodiscard]] bool any() const { return added > 0 || removed > 0 || moved; }
};

/// What the preferences file held when it was last read or saved, what differs from it by now, and
/// the way back. Differences are found by comparing, so that an edit that is taken back is none.
class SavedState {
 public:
  using Settings = std::array<Setting*, document::keyCount>;  // by index

  SavedState(const Settings& settings, MachineGroup& machine, volumes::VolumeTable& volumes)
      : settings_(settings), machine_(machine), volumes_(volumes) {}

  /// Takes what there is now for the saved state.
  void remember();

  /// The values that a save would write now.
  [[nodiscard]] std::array<std::string, document::keyCount> valuesToSave() const;

  /// The settings whose lines a save would write otherwise.
  [[nodiscard]] std::vector<Key> changedKeys() const;
  /// The same as a person sees it: one entry where a control shows more than one setting.
  [[nodiscard]] std::vector<Change> changes() const;

  /// What the line of a setting held when it was last read or saved.
  [[nodiscard]] const std::string& savedValue(Key key) const {
    return values_.at(document::indexOf(key));
  }

  [[nodiscard]] bool volumesChanged() const;
  [[nodiscard]] VolumeChanges volumeChanges() const;

  /// Gives all settings behind the control of a key their saved values: an edit like any other.
  void putBack(Key key);
  void putVolumesBack();
  void putAllBack();

 private:
  [[nodiscard]] Setting& settingOf(Key key) const { return *settings_.at(document::indexOf(key)); }

  const Settings& settings_;
  MachineGroup& machine_;
  volumes::VolumeTable& volumes_;
  std::array<std::string, document::keyCount> values_;
  volumes::VolumeList::Entries entries_;
  std::size_t revision_ = 0;  // of the table
};

}  // namespace editor
