#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/control.h"

namespace platform {

/// Where a drop would land: on a row, or between rows, above one.
enum class DropOperation : std::uint8_t { on = 0, above = 1 };
enum class DragOperation : std::uint8_t { none = 0, move = 16 };

/// A column of a table.
struct TableColumn {
  const char* identifier;  // of its cells
  const char* title;       // for a person, marked with `translatable` under "Columns"
  bool endsAtRight = false;
  std::array<std::string_view, 2> usual{};  // texts of its cells that it has room for at any time
};

/// What one cell shows.
struct TableCell {
  std::string identifier;  // its column's
  std::string text;
  std::string image;  // the name of a resource; empty: none
};

/// What a table asks for, and what it tells of drags.
class TableDataSource {
 public:
  TableDataSource() = default;
  TableDataSource(const TableDataSource&) = delete;
  TableDataSource& operator=(const TableDataSource&) = delete;
  virtual ~TableDataSource() = default;

  [[nodiscard]] virtual std::size_t numberOfRows() const = 0;
  virtual std::optional<TableCell> viewFor(std::optional<std::size_t> column, std::size_t row) = 0;

  /// The text of the dragged type that stands for a row.
  [[nodiscard]] virtual std::string pasteboardWriterForRow(std::size_t row) const = 0;
  [[nodiscard]] virtual DragOperation validateDrop(DropOperation operation) const = 0;

  /// Performs a drop above `row`; `items` are the texts of what is dropped.
  virtual bool acceptDrop(const std::vector<std::string>& items, std::size_t row) = 0;

  /// The rows or the selection have changed.
  virtual void tableChanged() {}
};

/// A table of rows of which several can be selected. Its cells are the data source's.
class TableView : public Control {
 public:
  using Control::Control;

  TableDataSource* dataSource = nullptr;

  void addTableColumn(const TableColumn& column) { columns_.push_back(column); }
  [[nodiscard]] const std::vector<TableColumn>& tableColumns() const { return columns_; }

  void registerForDraggedTypes(std::vector<std::string> types) { types_ = std::move(types); }
  [[nodiscard]] const std::vector<std::string>& draggedTypes() const { return types_; }

  [[nodiscard]] std::size_t numberOfRows() const {
    return dataSource != nullptr ? dataSource->numberOfRows() : 0;
  }

  /// The selected rows, the one selected last at the end.
  [[nodiscard]] const std::vector<std::size_t>& selectedRows() const { return selected_; }
  [[nodiscard]] std::optional<std::size_t> selectedRow() const;
  void selectRows(std::vector<std::size_t> rows);

  /// Has all cells asked for anew.
  void reloadData();

  /// Between these two, moves are shown together at the end.
  void beginUpdates() { updating_ = true; }
  void endUpdates();

  /// The row at `from` has become the one at `to`, or is gone; the selection goes along.
  void moveRow(std::size_t from, std::size_t to);
  void removeRow(std::size_t row);

  /// A number that changes with the rows, so that a view can tell that from a change of selection.
  [[nodiscard]] std::size_t revision() const { return revision_; }

 private:
  void rowsChanged();
  void tellDataSource() const;

  std::vector<TableColumn> columns_;
  std::vector<std::string> types_;
  std::vector<std::size_t> selected_;
  std::size_t revision_ = 0;
  bool updating_ = false;
};

}  // namespace platform
