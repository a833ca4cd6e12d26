#include "desktop/volume_view.h"

#include <QContextMenuEvent>
#include <QDrag>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QFocusEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyleOption>
#include <algorithm>
#include <set>

#include "desktop/appearance.h"
#include "desktop/texts.h"
#include "desktop/volume_menu.h"

namespace desktop {

namespace {

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

  // QHeaderView measures in bold letters, in which it shows the columns of a selection: here it
  // does not, and to load their face takes as long as all else of this list.
  [[nodiscard]] QSize sectionSizeFromContents(int section) const override {
    QStyleOptionHeader option;
    initStyleOption(&option);
    initStyleOptionForIndex(&option, section);
    return style()->sizeFromContents(QStyle::CT_HeaderSection, &option, QSize(), this);
  }

 private:
  [[nodiscard]] bool endsAtRight(int section) const {
    const QVariant alignment = model()->headerData(section, orientation(), Qt::TextAlignmentRole);
    return alignment.value<Qt::Alignment>().testFlag(Qt::AlignRight);
  }
};

}  // namespace

VolumeView::VolumeView(volumes::VolumeTable& volumes, const platform::Bundle& images)
    : volumes_(volumes), model_(volumes, images, this), delegate_(new VolumeDelegate(this)) {
  setObjectName(toQString(volumes.tableView.name()));
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  auto* const header = new TableHeader(this);
  setHorizontalHeader(header);  // before setModel(), or two headers measure their sections
  setModel(&model_);
  setItemDelegate(delegate_);
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
  header->setHighlightSections(false);
  header->setResizeContentsPrecision(0);  // the visible rows only
  header->setSectionResizeMode(QHeaderView::ResizeToContents);
  header->setSectionResizeMode(0, QHeaderView::Stretch);
  header->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
  shown_ = volumes.tableView.attach([this] { showState(); });
  added_ = volumes.added.subscribe([this] { selectAdded(); });
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

void VolumeView::selectAdded() {
  const int last = model_.rowCount() - 1;
  const int first = last + 1 - static_cast<int>(volumes_.result().size());
  selectionModel()->setCurrentIndex(model_.index(last, 0), QItemSelectionModel::NoUpdate);
  selectionModel()->select(QItemSelection(model_.index(first, 0), model_.index(last, 0)),
                           QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  scrollTo(model_.index(last, 0));
}

// When the focus comes by the keyboard for the first time, the first row is selected: QTableView
// makes it the current one only, and Delete and the keys that move rows would do nothing. A click
// selects its own row.
void VolumeView::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  if (!wasEntered_ && event->reason() != Qt::MouseFocusReason && model_.rowCount() > 0) {
    wasEntered_ = true;
    if (!selectionModel()->hasSelection()) {
      // selectRow would go by the modifiers that are held, Shift with Shift+Tab.
      selectionModel()->setCurrentIndex(
          model_.index(0, 0), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
  }
}

void VolumeView::contextMenuEvent(QContextMenuEvent* event) {
  const bool byKeyboard = event->reason() == QContextMenuEvent::Keyboard;
  openMenu(byKeyboard ? visualRect(currentIndex()).center() : event->pos());
}

void VolumeView::openMenu(const QPoint& place) {
  if (indexAt(place).isValid()) {
    (new VolumeMenu(
         volumes_, [this] { removeRow(); }, this))
        ->popup(viewport()->mapToGlobal(place));
  }
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
  } else if (event->modifiers() == Qt::ShiftModifier && event->key() == Qt::Key_F10) {
    // On X11 Qt 6.4 takes the key with the picture of a menu for this, and not this one.
    openMenu(visualRect(currentIndex()).center());
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

// QAbstractItemView's own picture is that of the dragged rows, right under the mouse, where it
// hides the line that shows where they will fall. This one is small and hangs below the mouse,
// further down than such a line ever is.
void VolumeView::startDrag(Qt::DropActions supportedActions) {
  const QModelIndexList rows = selectionModel()->selectedRows();
  if (rows.isEmpty()) {
    return;
  }
  auto* const drag = new QDrag(this);
  drag->setMimeData(model_.mimeData(rows));
  drag->setPixmap(dragPicture(static_cast<std::size_t>(rows.size())));
  const int row = verticalHeader()->defaultSectionSize();
  drag->setHotSpot(QPoint(-row / 2, -row));
  drag->exec(supportedActions, defaultDropAction());
}

// The name of the image, or how many there are.
QPixmap VolumeView::dragPicture(std::size_t rows) const {
  const QModelIndex current = model_.index(currentIndex().row(), 0);
  const QString path = current.data().toString();
  const QString text = rows == 1 ? path.mid(path.lastIndexOf(QLatin1Char('/')) + 1)
                                 : tr("%n disk images", nullptr, static_cast<int>(rows));
  const int letter = fontMetrics().averageCharWidth();
  const QString shown = fontMetrics().elidedText(text, Qt::ElideMiddle, 40 * letter);
  const QSize size(fontMetrics().horizontalAdvance(shown) + 2 * letter,
                   fontMetrics().lineSpacing() + letter);
  QPixmap picture(size * devicePixelRatioF());
  picture.setDevicePixelRatio(devicePixelRatioF());
  picture.fill(palette().color(QPalette::Highlight));
  QPainter painter(&picture);
  painter.setFont(font());
  painter.setPen(
      readableOn(palette().color(QPalette::Highlight), palette().color(QPalette::HighlightedText)));
  painter.drawText(QRect(QPoint(), size), Qt::AlignCenter | Qt::TextSingleLine, shown);
  return picture;
}

// What is dragged are row numbers. In the table of another process they mean other rows, which
// acceptDrop would move.
void VolumeView::dragEnterEvent(QDragEnterEvent* event) {
  if (event->source() == this) {
    QTableView::dragEnterEvent(event);
  }
}

// Over the middle of a row, where nothing can fall, Qt does not repaint: the line would stay where
// it was last.
void VolumeView::dragMoveEvent(QDragMoveEvent* event) {
  QTableView::dragMoveEvent(event);
  hovered_ = event->isAccepted() ? indexAt(event->position().toPoint()) : QModelIndex();
  viewport()->update();
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
//
// Of a table that is seen Qt measures the rows in sight, and not again when others come into sight
// by scrolling. The usual texts always have room.
int VolumeView::sizeHintForColumn(int column) const {
  if (!isVisible()) {
    return -1;
  }
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  const platform::TableColumn& shown =
      volumes_.tableView.tableColumns()[static_cast<std::size_t>(column)];
  return std::max(QTableView::sizeHintForColumn(column),
                  delegate_->usualWidth(shown, column, option));
}

void VolumeView::paintEvent(QPaintEvent* event) {
  // Qt's own line, under the first column only, would stay over the middle of a row, too.
  setDropIndicatorShown(false);
  QTableView::paintEvent(event);
  setDropIndicatorShown(true);  // without it Qt does not tell where between the rows a drag is
  if (state() == DraggingState) {
    paintDropLine();
  }
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
