#include "volumes/volume_table.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/byte_count.h"
#include "platform/text.h"
#include "platform/translatable.h"

namespace volumes {
namespace {

constexpr std::string_view dragDropType = "private.table-row";

std::string withoutScheme(std::string text) {
  constexpr std::string_view scheme = "file://";
  for (auto at = text.find(scheme); at != std::string::npos; at = text.find(scheme, at)) {
    text.erase(at, scheme.size());
  }
  return text;
}

}  // namespace

std::span<const VolumeTable::Column> VolumeTable::columns() {
  using platform::translatable;
  static constexpr auto table = std::to_array<Column>(
      {{{"NameCell", translatable("Columns", "Disk image")}, &VolumeTable::nameCell},
       {{"SizeCell", translatable("Columns", "Size"), true, {"999.9 MB"}}, &VolumeTable::sizeCell},
       {{"KindCell", translatable("Columns", "Kind"), false, {imageKind, missingKind}},
        &VolumeTable::kindCell}});
  return table;
}

VolumeTable::VolumeTable(platform::Output& output, platform::Panels& panels)
    : output_(output), panels_(panels), volumes_(output) {
  for (const Column& column : columns()) {
    tableView.addTableColumn(column.shown);
  }
  ronMode.setOn(true);
  browseFile.action = [this] { chooseFiles(); };
  removeVol.action = [this] { removeSelected(); };
  moveUp.action = [this] { moveSelectionUp(); };
  moveDown.action = [this] { moveSelectionDown(); };
  moveUp.setEnabled(false);
  moveDown.setEnabled(false);
  ronMode.action = [this] { switchList(); };
  sheetCreate.action = [this] { chooseNewPlace(); };
}

void VolumeTable::wire() {
  tableView.dataSource = this;
  tableView.registerForDraggedTypes({std::string(dragDropType)});
}

void VolumeTable::load(const std::vector<std::string_view>& lines) {
  loCalDebug.setStringValue("Debug: ");
  volumes_.load(lines);
  tableView.reloadData();
}

std::optional<platform::TableCell> VolumeTable::viewFor(std::optional<std::size_t> column,
                                                        std::size_t row) {
  const platform::Location& location =
      showsLocalList_ ? volumes_.volLocal()[row] : volumes_.volName()[row];
  output_.print(showsLocalList_ ? "loCalmode volLocal" : "loCalmode volRegular");
  output_.print(location.text());
  if (column && *column < columns().size()) {
    const Column& shown = columns()[*column];
    platform::TableCell cell = (this->*shown.cell)(location, row);
    cell.identifier = shown.shown.identifier;
    return cell;
  }
  if (reorderFlag_) {
    reorderFlag_ = false;
    tableView.reloadData();
  }
  return std::nullopt;
}

platform::TableCell VolumeTable::nameCell(const platform::Location& location, std::size_t /*row*/) {
  std::string text = location.path();
  if (text.empty()) {
    output_.print("p: ", location.text());
    text = withoutScheme(location.text());
    output_.print("p2: ", text);
  }
  output_.print("url: ", location.text());
  output_.print("disk table cell name: ", text);
  return {{}, std::move(text), "HappyMac.png"};
}

platform::TableCell VolumeTable::sizeCell(const platform::Location& /*location*/, std::size_t row) {
  return {{}, platform::ByteCountFormatter().stringFromByteCount(volumes_.volSize()[row]), {}};
}

platform::TableCell VolumeTable::kindCell(const platform::Location& location, std::size_t row) {
  const std::string path = location.path();
  output_.print("Debug: text.path for volume type: ", path);
  const char* const noPath = platform::translatable("Kinds", "No Path!");
  return {{}, path.starts_with('/') ? volumes_.volType()[row] : noPath, {}};
}

void VolumeTable::switchList() {
  if (ronMode.state() == platform::State::mixed) {
    output_.print("-1");
    return;
  }
  output_.print(ronMode.isOn() ? "1" : "0");
  output_.print(ronMode.isOn() ? "ronMode on" : "ronMode off");
  showsLocalList_ = ronMode.isOn();
  tableView.reloadData();
}

void VolumeTable::chooseFiles(const std::string& chosenFile) {
  platform::OpenPanel panel;
  panel.title = platform::translatable("Panels", "Select a volume");
  panel.canCreateDirectories = true;
  panel.allowsMultipleSelection = true;
  panel.allowedFileTypes = {"img",   "dmg",          "dsk",    "image", "cdr", "iso",
                            "toast", "sparsebundle", "sparse", "dc42",  "hfv", "hvf",
                            "hfs",   "ndif",         "dk*",    "cue"};
  panel.chosenFile = chosenFile;
  panels_.beginSheet(panel, [this](const std::vector<platform::Location>& chosen) {
    auto fitting = platform::thatFitALine(chosen, output_);
    const bool areAny = !fitting.empty();
    if (areAny) {
      result_ = std::move(fitting);
      volumes_.add(result_);
    }
    tableView.reloadData();
    if (areAny) {
      added();
    }
  });
}

void VolumeTable::removeSelected() {
  const auto row = tableView.selectedRow();
  if (!row) {
    return;
  }
  const auto& names = volumes_.volName();
  const auto first = std::find(names.begin(), names.end(), names[*row]);
  const auto index = static_cast<std::size_t>(first - names.begin());
  volumes_.remove(index);
  tableView.removeRow(index);
  output_.print("anything to remove? ", std::to_string(index));
  tableView.reloadData();
}

void VolumeTable::restore(const VolumeList::Entries& entries) {
  volumes_.restore(entries);
  tableView.selectRows({});
  tableView.reloadData();
}

void VolumeTable::chooseNewPlace() {
  platform::SavePanel panel;
  panel.title = platform::translatable("Panels", "Create a new blank volume");
  panel.message = platform::translatable("Panels", "Create a new blank unformatted disk image");
  panel.nameFieldStringValue = "Unformatted";
  panel.allowedFileTypes = {"dsk"};
  panel.canSelectHiddenExtension = true;
  panel.showsTagField = false;
  panels_.beginSheet(panel, [this](const std::vector<platform::Location>& chosen) {
    if (!chosen.empty()) {
      output_.print(chosen.front().text());
    }
  });
}

std::string VolumeTable::pasteboardWriterForRow(std::size_t row) const {
  return std::to_string(row);
}

platform::DragOperation VolumeTable::validateDrop(platform::DropOperation operation) const {
  return operation == platform::DropOperation::above ? platform::DragOperation::move
                                                     : platform::DragOperation::none;
}

bool VolumeTable::acceptDrop(const std::vector<std::string>& items, std::size_t dropRow) {
  const std::size_t row = std::min(dropRow, volumes_.size());
  std::size_t above = 0;  // how many rows from above the drop have moved already
  std::size_t below = 0;
  tableView.beginUpdates();
  for (const std::string& item : items) {
    const auto number = platform::parseInt64(item);
    if (!number || *number < 0) {
      continue;
    }
    const auto source = static_cast<std::size_t>(*number);
    const std::size_t from = source < row ? source - above++ : source;
    const std::size_t to = source < row ? row - 1 : row + below++;
    // Foreign data may name a row that does not exist, or one twice.
    if (std::max(from, to) >= volumes_.size()) {
      continue;
    }
    tableView.moveRow(from, to);
    volumes_.move(from, to);
    reorderFlag_ = true;
  }
  tableView.endUpdates();
  return true;
}

void VolumeTable::moveSelection(std::size_t dropRow) {
  std::vector<std::size_t> rows = tableView.selectedRows();
  std::sort(rows.begin(), rows.end());
  std::vector<std::string> items;
  std::transform(rows.begin(), rows.end(), std::back_inserter(items),
                 [this](std::size_t row) { return pasteboardWriterForRow(row); });
  acceptDrop(items, dropRow);
}

bool VolumeTable::canMoveUp() const {
  const auto& rows = tableView.selectedRows();
  return !rows.empty() && *std::min_element(rows.begin(), rows.end()) > 0;
}

bool VolumeTable::canMoveDown() const {
  const auto& rows = tableView.selectedRows();
  return !rows.empty() && *std::max_element(rows.begin(), rows.end()) + 1 < volumes_.size();
}

void VolumeTable::tableChanged() {
  moveUp.setEnabled(canMoveUp());
  moveDown.setEnabled(canMoveDown());
}

void VolumeTable::moveSelectionUp() {
  if (canMoveUp()) {
    const auto& rows = tableView.selectedRows();
    moveSelection(*std::min_element(rows.begin(), rows.end()) - 1);
  }
}

void VolumeTable::moveSelectionDown() {
  if (canMoveDown()) {
    const auto& rows = tableView.selectedRows();
    moveSelection(*std::max_element(rows.begin(), rows.end()) + 2);
  }
}

}  // namespace volumes
