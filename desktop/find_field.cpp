#include "desktop/find_field.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QStandardItemModel>
#include <algorithm>
#include <utility>

namespace desktop {
namespace {

constexpr int searchedRole = Qt::UserRole;
constexpr int placeRole = Qt::UserRole + 1;

// Matches all that is known of a setting, and shows its name.
class SettingCompleter : public QCompleter {
 public:
  using QCompleter::QCompleter;

  [[nodiscard]] QString pathFromIndex(const QModelIndex& index) const override {
    return index.data(Qt::DisplayRole).toString();
  }
};

}  // namespace

FindField::FindField(const SettingWidgets& settingWidgets,
                     std::function<QString(const SettingWidget&)> tabOf,
                     std::function<void(const SettingWidget&)> go)
    : settingWidgets_(settingWidgets), tabOf_(std::move(tabOf)), go_(std::move(go)) {
  setObjectName(QLatin1String("findSetting"));
  setPlaceholderText(tr("Find a setting (Ctrl+F)"));
  setAccessibleName(tr("Find a setting"));
  setToolTip(tr("Type a word of a setting's name, its key or its help."));
  setWhatsThis(toolTip());
  setAccessibleDescription(toolTip());
  // Measuring the text itself would take longer than all else here.
  const int letters = static_cast<int>(placeholderText().size());
  setFixedWidth(letters * fontMetrics().averageCharWidth() + 3 * fontMetrics().height());
  connect(this, &QLineEdit::returnPressed, this, [this] {
    if (completer() != nullptr && !completer()->popup()->currentIndex().isValid()) {
      completer()->setCompletionPrefix(text());
      goTo(completer()->completionModel()->index(0, 0));
    }
  });
}

// Only who searches needs the list, and the button whose picture takes long to load.
void FindField::focusInEvent(QFocusEvent* event) {
  if (completer() == nullptr) {
    buildList();
    setClearButtonEnabled(true);
  }
  nameHits();
  QLineEdit::focusInEvent(event);
  // A list that closes gives the focus back: what comes next goes on with the word.
  if (event->reason() != Qt::PopupFocusReason) {
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
  hits_ = new QStandardItemModel(this);
  for (std::size_t place = 0; place < settingWidgets_.size(); ++place) {
    const SettingWidget& entry = settingWidgets_[place];
    auto* const item = new QStandardItem;
    item->setData(entry.title + QLatin1Char('\n') + entry.widget->whatsThis(), searchedRole);
    item->setData(static_cast<qulonglong>(place), placeRole);
    hits_->appendRow(item);
  }
  auto* const list = new SettingCompleter(hits_, this);
  list->setCompletionRole(searchedRole);
  list->setFilterMode(Qt::MatchContains);
  list->setCaseSensitivity(Qt::CaseInsensitive);
  list->setMaxVisibleItems(12);
  setCompleter(list);
  // Not to a slot of the field: Qt cuts those off when the field loses the focus.
  connect(list, qOverload<const QModelIndex&>(&QCompleter::activated), list,
          [this](const QModelIndex& hit) { goTo(hit); });
}

// A setting that is disabled says what comes first.
void FindField::nameHits() {
  int width = 0;
  for (int row = 0; row < hits_->rowCount(); ++row) {
    const SettingWidget& entry = settingWidgets_[static_cast<std::size_t>(row)];
    QString name = tr("%1 — %2").arg(entry.title, tabOf_(entry));
    if (const SettingWidget* const enabler = enablerOf(entry, settingWidgets_)) {
      name = tr("%1 (turn on \"%2\" first)").arg(name, enabler->title);
    }
    hits_->item(row)->setText(name);
    width = std::max(width, fontMetrics().horizontalAdvance(name));
  }
  completer()->popup()->setMinimumWidth(width + 2 * fontMetrics().height());
}

void FindField::goTo(const QModelIndex& hit) {
  if (hit.isValid()) {
    const SettingWidget& place = settingWidgets_.at(hit.data(placeRole).toULongLong());
    // After the completer has put the name of the hit here.
    QMetaObject::invokeMethod(this, &QLineEdit::clear, Qt::QueuedConnection);
    go_(place);
  }
}

}  // namespace desktop
