#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/control.h"
#include "platform/panels.h"
#include "platform/subscription.h"
#include "platform/table_view.h"
#include "volumes/volume_list.h"

namespace volumes {

/// The table of disk images and what changes it: adding, removing and reordering. Nothing here
/// touches a file; the list is written when the preferences are saved.
class VolumeTable : public platform::TableDataSource {
 public:
  VolumeTable(platform::Output& output, platform::Panels& panels);

  platform::TableView tableView{"tableView"};
  platform::Button browseFile{"browseFile"};
  platform::Button removeVol{"removeVol"};
  platform::Button moveUp{"moveUp"};  // these two are enabled while they can act
  platform::Button moveDown{"moveDown"};
  platform::Button ronMode{"ronMode"};
  platform::Button sheetCreate{"sheetCreate"};
  platform::TextField loCalDebug{"loCalDebug"};

  /// Makes this the table's source of rows and target of drops.
  void wire();

  /// Fills the list from the lines that contain "disk ".
  void load(const std::vector<std::string_view>& lines);

  [[nodiscard]] const VolumeList& volumes() const { return volumes_; }

  /// Makes these the images again.
  void restore(const VolumeList::Entries& entries);

  /// What was added last: the rows at the end of the table.
  [[nodiscard]] const std::vector<platform::Location>& result() const { return result_; }

  /// Runs after rows have been added.
  platform::Callback added;

  /// Has files chosen and adds them. `chosenFile` is chosen from the beginning, unless it is empty.
  void chooseFiles(const std::string& chosenFile = {});

  /// Moves the selected rows one place, by the rule of a drop beside their neighbour.
  void moveSelectionUp();
  void moveSelectionDown();

  [[nodiscard]] std::size_t numberOfRows() const override { return volumes_.size(); }
  std::optional<platform::TableCell> viewFor(std::optional<std::size_t> column,
                                             std::size_t row) override;
  [[nodiscard]] std::string pasteboardWriterForRow(std::size_t row) const override;
  [[nodiscard]] platform::DragOperation validateDrop(
      platform::DropOperation operation) const override;
  bool acceptDrop(const std::vector<std::string>& items, std::size_t dropRow) override;
  void tableChanged() override;

 private:
  struct Column {
    platform::TableColumn shown;
    platform::TableCell (VolumeTable::*cell)(const platform::Location& location, std::size_t row);
  };
  /// In the order in which they are shown.
  [[nodiscard]] static std::span<const Column> columns();

  platform::TableCell nameCell(const platform::Location& location, std::size_t row);
  platform::TableCell sizeCell(const platform::Location& location, std::size_t row);
  platform::TableCell kindCell(const platform::Location& location, std::size_t row);
  void removeSelected();
  void switchList();
  void chooseNewPlace();
  [[nodiscard]] bool canMoveUp() const;
  [[nodiscard]] bool canMoveDown() const;
  void moveSelection(std::size_t dropRow);

  platform::Output& output_;
  platform::Panels& panels_;
  VolumeList volumes_;
  std::vector<platform::Location> result_;  // what was chosen last
  bool showsLocalList_ = true;              // which of the two equal lists the table reads
  bool reorderFlag_ = false;                // set by a move until the table has noticed
};

}  // namespace volumes
