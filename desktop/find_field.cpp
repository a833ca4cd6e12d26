#include "desktop/find_field.h"

#include <QCompleter>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QListView>
#include <algorithm>
#include <utility>

#include "desktop/search_hits.h"

namespace desktop {
namespace {

// Shows the name of a hit, though it matches the text that was searched for.
class HitCompleter : public QCompleter {
 public:
  using QCompleter::QCompleter;

  [[nodiscard]] QString pathFromIndex(const QModelIndex& index) const override {
    return index.data(Qt::DisplayRole).toString();
  }
};

constexpr int hitsInSight = 12;

// Ends where the field does. QCompleter lets a list begin where its field does; one that is wider
// would reach beyond the window. It also makes the list 6 pixels higher than the rows, whatever the
// frame takes, and a part of the next row would show there.
class HitList : public QListView {
 public:
  explicit HitList(const QWidget& field) : field_(field) {}

 protected:
  void showEvent(QShowEvent* event) override {
    QListView::showEvent(event);
    setMaximumHeight(hitsInSight * sizeHintForRow(0) + height() - viewport()->height());
    align();
  }

  void moveEvent(QMoveEvent* event) override {
    QListView::moveEvent(event);
    align();
  }

 private:
  void align() {
    const QRect field(field_.mapToGlobal(QPoint()), field_.size());
    const int left = isRightToLeft() ? field.left() : field.right() + 1 - width();
    if (left != x()) {
      move(left, y());
    }
  }

  const QWidget& field_;
};

}  // namespace

FindField::FindField(std::function<SearchIndex()> collect) : collect_(std::move(collect)) {
  setObjectName(QLatin1String("findSetting"));
  setPlaceholderText(tr("Find a setting (Ctrl+F)"));
  setAccessibleName(tr("Find a setting"));
  setToolTip(tr("Type words of a setting, of a choice that it offers, or of a disk image."));
  setWhatsThis(toolTip());
  setAccessibleDescription(toolTip());
  // Measuring the text itself would take longer than all else here.
  const int letters = static_cast<int>(placeholderText().size());
  setFixedWidth(letters * fontMetrics().averageCharWidth() + 3 * fontMetrics().height());
  // QLineEdit asks its completer only after this.
  connect(this, &QLineEdit::textEdited, this, &FindField::search);
  connect(this, &QLineEdit::returnPressed, this, [this] {
    if (completer() != nullptr && !completer()->popup()->currentIndex().isValid()) {
      search();
      goTo(hits_->index(0, 0));
    }
  });
}

// Only who searches needs the list, and the button whose picture takes long to load.
void FindField::focusInEvent(QFocusEvent* event) {
  if (completer() == nullptr) {
    buildList();
    setClearButtonEnabled(true);
  }
  QLineEdit::focusInEvent(event);
  // When the list closes, the focus comes back in the middle of a word: selecting it then would
  // have the next letter replace it.
  if (event->reason() != Qt::PopupFocusReason) {
    index_.reset();
    selectAll();
  }
}

bool FindField::event(QEvent* event) {
  const bool known = QLineEdit::event(event);
  // A shortcut that is none of the field's own leads away: the list would stay open in its way.
  if (event->type() == QEvent::ShortcutOverride && !event->isAccepted() && hasOpenList()) {
    const auto* const press = static_cast<QKeyEvent*>(event);
    const bool onlyModifier = press->key() >= Qt::Key_Shift && press->key() <= Qt::Key_ScrollLock;
    if (!onlyModifier && (press->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0) {
      completer()->popup()->hide();
    }
  }
  return known;
}

bool FindField::hasOpenList() const {
  return completer() != nullptr && completer()->popup()->isVisible();
}

void FindField::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && hasOpenList()) {
    event->ignore();  // closes the list
  } else if (event->key() == Qt::Key_Escape) {
    clear();
  } else {
    QLineEdit::keyPressEvent(event);
  }
}

void FindField::buildList() {
  hits_ = new SearchHits(this);
  auto* const list = new HitCompleter(hits_, this);
  // SearchHits holds hits only. QCompleter filters them once more, so all of them answer this role
  // with the text that was searched for.
  list->setCompletionRole(SearchHits::searchedRole);
  list->setFilterMode(Qt::MatchContains);
  list->setMaxVisibleItems(hitsInSight);
  auto* const rows = new HitList(*this);
  list->setPopup(rows);
  rows->setEditTriggers(QAbstractItemView::NoEditTriggers);
  rows->setUniformItemSizes(true);
  rows->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  rows->setItemDelegate(new SearchHitDelegate(rows));
  rows->setAccessibleName(tr("What was found"));
  constexpr int letters = 64;
  rows->setMinimumWidth(std::min(letters * fontMetrics().averageCharWidth(), window()->width()));
  setCompleter(list);
  // Not to a slot of the field: Qt cuts those off when the field loses the focus.
  connect(list, qOverload<const QModelIndex&>(&QCompleter::activated), list,
          [this](const QModelIndex& hit) { goTo(hit); });
}

void FindField::search() {
  if (hits_ != nullptr) {
    if (!index_) {
      index_ = collect_();
    }
    hits_->show(*index_, text());
  }
}

void FindField::goTo(const QModelIndex& hit) {
  const QVariant entry = hit.data(SearchHits::entryRole);
  if (entry.isValid()) {
    const std::function<void()> go = index_->at(entry.toULongLong()).go;
    // After the completer has put the name of the hit here.
    QMetaObject::invokeMethod(this, &QLineEdit::clear, Qt::QueuedConnection);
    go();
  }
}

}  // namespace desktop
