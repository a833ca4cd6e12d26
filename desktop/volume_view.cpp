#include "desktop/volume_view.h"

#include <QDragMoveEvent>
#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <algorithm>
#include <set>

#include "desktop/texts.h"

namespace desktop {

namespace {

// Is painted behind texts that end at the right, which would otherwise touch those of the next
// column. The model does not have it: screen readers and tools would.
constexpr QChar columnGap(0x2002);  // an en space

class CellDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    option->text = leftToRight(option->text);
    if (option->displayAlignment.testFlag(Qt::AlignRight)) {
      option->text += columnGap;
    }
  }
};

class TableHeader : public QHeaderView {
 public:
  explicit TableHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setSectionsClickable(true);
  }

 protected:
  void initStyleOptionForIndex(QStyleOptionHeader* option, int section) const override {
    QHeaderView::initStyleOptionForIndex(option, section);
    if (endsAtRight(section)) {
      option->text += columnGap;
    }
  }

  [[nodiscard]] QSize sectionSizeFromContents(int section) const override {
    const QSize size = QHeaderView::sectionSizeFromContents(section);
    return endsAtRight(section) ? size + QSize(fontMetrics().horizontalAdvance(columnGap), 0)
                                : size;
  }

 private:
  [[nodiscard]] bool endsAtRight(int section) const {
    const QVariant alignment = model()->headerData(section, orientation(), Qt::TextAlignmentRole);
    return alignment.value<Qt::Alignment>().testFlag(Qt::AlignRight);
  }
};

}  // namespace

VolumeView::VolumeView(volumes::VolumeTable& volumes, const platform::Bundle& images)
    : volumes_(volumes), model_(volumes.tableView, images, this) {
  setObjectName(toQString(volumes.tableView.name()));
  setModel(&model_);
  setItemDelegate(new CellDelegate(this));
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setDragDropMode(DragDrop);
  setDefaultDropAction(Qt::MoveAction);
  setDragDropOverwriteMode(false);
  setTextElideMode(Qt::ElideMiddle);
  setShowGrid(false);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setAlternatingRowColors(true);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  auto* const header = new TableHeader(this);
  setHorizontalHeader(header);
  header->setHighlightSections(false);
  header->setResizeContentsPrecision(0);  // the visible rows only
  header->setSectionResizeMode(QHeaderView::ResizeToContents);
  header->setSectionResizeMode(0, QHeaderView::Stretch);
  header->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
  shown_ = volumes.tableView.attach([this] { showState(); });
  connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &VolumeView::rememberSelection);
}

void VolumeView::showState() {
  const QScopedValueRollback<bool> guard(showing_, true);
  platform::TableView& table = volumes_.tableView;
  if (revision_ != table.revision()) {
    revision_ = table.revision();
    const int current = currentIndex().row();
    model_.reload();
    const auto selected = table.selectedRow();
    const int row =
        selected ? static_cast<int>(*selected) : std::min(current, model_.rowCount() - 1);
    selectionModel()->setCurrentIndex(model_.index(row, 0), QItemSelectionModel::NoUpdate);
  }
  QItemSelection selection;
  for (const std::size_t row : table.selectedRows()) {
    const QModelIndex index = model_.index(static_cast<int>(row), 0);
    selection.select(index, index);
  }
  selectionModel()->select(selection,
                           QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  viewport()->update();
}

// Keeps the order in which rows were selected: the one selected last is the table's selected row.
void VolumeView::rememberSelection(const QItemSelection& selected,
                                   const QItemSelection& deselected) {
  if (showing_) {
    return;
  }
  const auto rowsOf = [](const QItemSelection& part) {
    std::set<std::size_t> rows;
    for (const QModelIndex& index : part.indexes()) {
      rows.insert(static_cast<std::size_t>(index.row()));
    }
    return rows;
  };
  std::vector<std::size_t> rows = volumes_.tableView.selectedRows();
  const auto gone = rowsOf(deselected);
  std::erase_if(rows, [&](std::size_t row) { return gone.contains(row); });
  for (const std::size_t row : rowsOf(selected)) {
    rows.push_back(row);
  }
  const auto current = static_cast<std::size_t>(currentIndex().row());
  const auto last = std::find(rows.begin(), rows.end(), current);
  if (last != rows.end()) {
    std::rotate(last, last + 1, rows.end());
  }
  volumes_.tableView.edit([&] { volumes_.tableView.selectRows(std::move(rows)); });
}

void VolumeView::keyPressEvent(QKeyEvent* event) {
  const bool alt = event->modifiers() == Qt::AltModifier;
  // A held Delete would empty the list.
  const bool plain = event->modifiers() == Qt::NoModifier && !event->isAutoRepeat();
  if (alt && event->key() == Qt::Key_Up) {
    volumes_.moveSelectionUp();
  } else if (alt && event->key() == Qt::Key_Down) {
    volumes_.moveSelectionDown();
  } else if (plain && event->key() == Qt::Key_Delete) {
    removeRow();
  } else if (plain && event->key() == Qt::Key_Insert) {
    volumes_.browseFile.sendAction();
  } else {
    QTableView::keyPressEvent(event);
  }
}

// Selects the row that moved up, so that Delete can be pressed again.
void VolumeView::removeRow() {
  const auto row = volumes_.tableView.selectedRow();
  const int rows = model_.rowCount();
  volumes_.removeVol.sendAction();
  if (row && model_.rowCount() < rows && !selectionModel()->hasSelection()) {
    selectRow(std::min(static_cast<int>(*row), model_.rowCount() - 1));
  }
}

// A drag carries row numbers, which mean other rows in the table of another process.
void VolumeView::dragEnterEvent(QDragEnterEvent* event) {
  if (event->source() == this) {
    QTableView::dragEnterEvent(event);
  }
}

void VolumeView::dragMoveEvent(QDragMoveEvent* event) {
  hovered_ = indexAt(event->position().toPoint());
  QTableView::dragMoveEvent(event);
}

// Versions of Qt later than 6.4 have QTableView::dropEvent, which moves the rows by itself, and
// none of them when the first is in its place already. The base class leaves moving to
// dropMimeData.
void VolumeView::dropEvent(QDropEvent* event) {
  QAbstractItemView::dropEvent(event);  // NOLINT(bugprone-parent-virtual-call)
}

// Of a table that is not seen Qt measures all rows, and Qt 6.8 does so whenever the page of the
// table is taken out of the tabs for a while: its header is told that it is hidden, and the table
// then asks it for its length. A table that is shown again is measured again.
int VolumeView::sizeHintForColumn(int column) const {
  return isVisible() ? QTableView::sizeHintForColumn(column) : -1;
}

void VolumeView::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  if (model_.rowCount() == 0) {
    paintHint();
  } else if (state() == DraggingState) {
    paintDropLine();
  }
}

void VolumeView::paintHint() {
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.drawText(viewport()->rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap,
                   tr("No disk images yet. Press Insert or the button \"Add…\" to add one."));
}

void VolumeView::paintDropLine() {
  const DropIndicatorPosition place = dropIndicatorPosition();
  if (!hovered_.isValid() || place == OnViewport || place == OnItem) {
    return;
  }
  const QRect row = visualRect(hovered_);
  const int y = place == BelowItem ? row.bottom() : row.top();
  QPainter painter(viewport());
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawLine(0, y, viewport()->width(), y);
}

}  // namespace desktop
