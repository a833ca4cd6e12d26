#include "platform/table_view.h"

#include <utility>

namespace platform {

std::optional<std::size_t> TableView::selectedRow() const {
  return selected_.empty() ? std::nullopt : std::optional(selected_.back());
}

void TableView::selectRows(std::vector<std::size_t> rows) {
  set(selected_, std::move(rows));
  tellDataSource();
}

void TableView::reloadData() {
  const std::size_t count = numberOfRows();
  std::erase_if(selected_, [count](std::size_t row) { return row >= count; });
  rowsChanged();
}

void TableView::endUpdates() {
  updating_ = false;
  rowsChanged();
}

void TableView::moveRow(std::size_t from, std::size_t to) {
  for (std::size_t& row : selected_) {
    if (row == from) {
      row = to;
    } else if (from < row && row <= to) {
      --row;
    } else if (to <= row && row < from) {
      ++row;
    }
  }
  rowsChanged();
}

void TableView::removeRow(std::size_t row) {
  std::erase(selected_, row);
  for (std::size_t& selected : selected_) {
    selected -= selected > row ? 1 : 0;
  }
  rowsChanged();
}

void TableView::rowsChanged() {
  ++revision_;
  if (!updating_) {
    changed();
    tellDataSource();
  }
}

void TableView::tellDataSource() const {
  if (dataSource != nullptr) {
    dataSource->tableChanged();
  }
}

}  // namespace platform
