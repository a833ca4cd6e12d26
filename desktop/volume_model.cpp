#include "desktop/volume_model.h"

#include <QCoreApplication>
#include <QMimeData>
#include <set>
#include <utility>

#include "desktop/plain_text.h"
#include "desktop/texts.h"

namespace desktop {

using platform::DragOperation;
using platform::DropOperation;

VolumeModel::VolumeModel(platform::TableView& table, platform::Bundle images, QObject* parent)
    : QAbstractTableModel(parent), table_(table), images_(std::move(images)) {}

void VolumeModel::reload() {
  beginResetModel();
  cells_.clear();
  rows_ = static_cast<int>(table_.numberOfRows());
  endResetModel();
}

int VolumeModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int VolumeModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(table_.tableColumns().size());
}

const platform::TableColumn* VolumeModel::columnAt(int column) const {
  return column >= 0 && column < columnCount()
             ? &table_.tableColumns()[static_cast<std::size_t>(column)]
             : nullptr;
}

const platform::TableCell* VolumeModel::cell(const QModelIndex& index) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
    return nullptr;
  }
  auto& row = cells_[index.row()];
  row.resize(table_.tableColumns().size());
  auto& known = row[static_cast<std::size_t>(index.column())];
  if (!known) {
    known = table_.dataSource->viewFor(static_cast<std::size_t>(index.column()),
                                       static_cast<std::size_t>(index.row()));
  }
  return known ? &*known : nullptr;
}

const QIcon& VolumeModel::image(const std::string& name) const {
  const auto [known, isNew] = icons_.try_emplace(name);
  if (isNew) {
    known->second = QIcon(toQString(images_.resource(name)));
  }
  return known->second;
}

QVariant VolumeModel::data(const QModelIndex& index, int role) const {
  if (role == Qt::TextAlignmentRole) {
    return alignment(index.column());
  }
  const bool shownRole = role == Qt::DisplayRole || role == Qt::ToolTipRole ||
                         role == Qt::AccessibleTextRole || role == Qt::DecorationRole;
  const platform::TableCell* const shownCell = shownRole ? cell(index) : nullptr;
  if (shownCell == nullptr) {
    return {};
  }
  if (role == Qt::DecorationRole) {
    return shownCell->image.empty() ? QVariant() : QVariant(image(shownCell->image));
  }
  const QString text = toQString(shownCell->text);
  return role == Qt::ToolTipRole ? plainToolTip(text) : text;
}

QVariant VolumeModel::alignment(int column) const {
  const platform::TableColumn* const shown = columnAt(column);
  return shown != nullptr && shown->endsAtRight
             ? QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter)
             : QVariant();
}

QVariant VolumeModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const platform::TableColumn* const column =
      orientation == Qt::Horizontal ? columnAt(section) : nullptr;
  if (column != nullptr && role == Qt::DisplayRole) {
    return QCoreApplication::translate("Columns", column->title);
  }
  if (column != nullptr && role == Qt::TextAlignmentRole) {
    return alignment(section);
  }
  return QAbstractTableModel::headerData(section, orientation, role);
}

Qt::ItemFlags VolumeModel::flags(const QModelIndex& index) const {
  // canDropMimeData refuses a drop on a row. The row must have ItemIsDropEnabled all the same:
  // without it QAbstractItemView takes a drop on the middle of the row for one between two rows.
  return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled |
                               Qt::ItemIsDropEnabled | Qt::ItemNeverHasChildren
                         : Qt::ItemIsDropEnabled;
}

QStringList VolumeModel::mimeTypes() const {
  QStringList types;
  for (const std::string& type : table_.draggedTypes()) {
    types.append(toQString(type));
  }
  return types;
}

// A line for each dragged row, in the order of the table: `indexes` are in that of the selection.
QMimeData* VolumeModel::mimeData(const QModelIndexList& indexes) const {
  std::set<int> rows;
  for (const QModelIndex& index : indexes) {
    rows.insert(index.row());
  }
  QByteArray lines;
  for (const int row : rows) {
    lines += QByteArray::fromStdString(
        table_.dataSource->pasteboardWriterForRow(static_cast<std::size_t>(row)));
    lines += '\n';
  }
  auto* const data = new QMimeData;
  data->setData(mimeTypes().constFirst(), lines);
  return data;
}

bool VolumeModel::canDropMimeData(const QMimeData* data, Qt::DropAction action, int /*row*/,
                                  int /*column*/, const QModelIndex& parent) const {
  // A drop below the last row has no parent item either, and -1 as its row.
  const bool between = !parent.isValid();
  return action == Qt::MoveAction && data->hasFormat(mimeTypes().constFirst()) &&
         table_.dataSource->validateDrop(between ? DropOperation::above : DropOperation::on) ==
             DragOperation::move;
}

bool VolumeModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                               const QModelIndex& parent) {
  if (!canDropMimeData(data, action, row, column, parent)) {
    return false;
  }
  std::vector<std::string> items;
  for (const QByteArray& item : data->data(mimeTypes().constFirst()).split('\n')) {
    if (!item.isEmpty()) {
      items.push_back(item.toStdString());
    }
  }
  return table_.dataSource->acceptDrop(items, static_cast<std::size_t>(row < 0 ? rows_ : row));
}

}  // namespace desktop
