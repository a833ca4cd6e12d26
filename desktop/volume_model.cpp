#include "desktop/volume_model.h"

#include <QCoreApplication>
#include <QMimeData>
#include <set>
#include <utility>

#include "desktop/pictures.h"
#include "desktop/plain_text.h"
#include "desktop/sizes.h"
#include "desktop/texts.h"
#include "platform/byte_count.h"

namespace desktop {

using platform::DragOperation;
using platform::DropOperation;

VolumeModel::VolumeModel(volumes::VolumeTable& volumes, platform::Bundle images, QObject* parent)
    : QAbstractTableModel(parent),
      volumes_(volumes),
      table_(volumes.tableView),
      images_(std::move(images)) {}

void VolumeModel::reload() {
  beginResetModel();
  cells_.clear();
  rows_ = static_cast<int>(table_.numberOfRows());
  endResetModel();
}

void VolumeModel::setFacts(const ImageFacts& facts) {
  facts_ = facts;
  if (rows_ > 0) {
    emit dataChanged(index(0, 0), index(rows_ - 1, columnCount() - 1),
                     {Qt::AccessibleDescriptionRole, Qt::ToolTipRole});
  }
}

const checks::FileFact* VolumeModel::factAbout(int row) const {
  const auto fact = facts_.find(pathOf(row));
  return fact != facts_.end() ? &fact->second : nullptr;
}

std::string VolumeModel::pathOf(int row) const {
  return volumes_.volumes().volName().at(static_cast<std::size_t>(row)).path();
}

QString VolumeModel::troubleOf(int row) const {
  const checks::FileFact* const fact = factAbout(row);
  if (fact != nullptr && fact->kind == checks::FileFact::Kind::nothing) {
    return tr("This file is missing.");
  }
  if (fact != nullptr && fact->kind == checks::FileFact::Kind::unknown) {
    return tr("This file cannot be reached: %1").arg(toQString(fact->error));
  }
  return {};
}

QString VolumeModel::summary() const {
  if (rows_ == 0) {
    return {};
  }
  QStringList parts(rows_ == 1 ? tr("1 disk image") : tr("%n disk images", nullptr, rows_));
  std::int64_t bytes = 0;
  int missing = 0;
  int unknown = 0;  // in a folder that may not be entered, for example
  for (int row = 0; row < rows_ && !facts_.empty(); ++row) {
    if (const checks::FileFact* const fact = factAbout(row)) {
      bytes += fact->kind == checks::FileFact::Kind::file ? fact->stamp.size : 0;
      missing += fact->kind == checks::FileFact::Kind::nothing ? 1 : 0;
      unknown += fact->kind == checks::FileFact::Kind::unknown ? 1 : 0;
    }
  }
  if (bytes > 0) {
    parts.append(translatedSize(platform::ByteCountFormatter().stringFromByteCount(bytes)));
  }
  if (missing > 0) {
    parts.append(tr("%n missing", nullptr, missing));
  }
  if (unknown > 0) {
    parts.append(tr("%n not reachable", nullptr, unknown));
  }
  return parts.join(tr(", ", "between the parts of \"12 disk images, 1.3 GB, 2 missing\""));
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
    known->second = pictureOf(toQString(images_.resource(name)));
  }
  return known->second;
}

QVariant VolumeModel::data(const QModelIndex& index, int role) const {
  if (role == Qt::TextAlignmentRole) {
    return alignment(index.column());
  }
  if (role == Qt::AccessibleDescriptionRole && index.isValid()) {
    return troubleOf(index.row());
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
  if (role == Qt::ToolTipRole) {
    return plainToolTip((text + QLatin1Char('\n') + troubleOf(index.row())).trimmed());
  }
  return text;
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
