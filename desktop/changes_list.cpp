#include "desktop/changes_list.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/icons.h"
#include "desktop/plain_text.h"
#include "desktop/setting_widgets.h"
#include "desktop/texts.h"

namespace desktop {
namespace {

QString valueText(const editor::Setting& setting, const std::string& value,
                  const std::string& shown) {
  if (const auto* const screen = dynamic_cast<const editor::ScreenSetting*>(&setting)) {
    return translatedScreen(*screen, value);
  }
  return shown.empty() ? ChangesList::tr("(empty)") : translatedValue(shown);
}

QString volumesText(const editor::VolumeChanges& changes) {
  QStringList parts;
  if (changes.added > 0) {
    parts.append(ChangesList::tr("%1 added").arg(changes.added));
  }
  if (changes.removed > 0) {
    parts.append(ChangesList::tr("%1 removed").arg(changes.removed));
  }
  if (changes.moved) {
    parts.append(ChangesList::tr("in another order"));
  }
  return parts.join(QLatin1String(", "));
}

QLabel* wrappedLabel(const QString& text) {
  QLabel* const label = plainLabel(text);
  label->setWordWrap(true);
  return label;
}

}  // namespace

ChangesList::ChangesList(editor::ViewController& controller, Edits& edits, QWidget* parent)
    : QDialog(parent), controller_(controller), edits_(edits), area_(new QScrollArea) {
  setObjectName(QLatin1String("changesList"));
  setWindowTitle(tr("Unsaved Changes"));
  setAttribute(Qt::WA_DeleteOnClose);
  area_->setWidgetResizable(true);
  area_->setFrameShape(QFrame::NoFrame);
  area_->setFocusPolicy(Qt::NoFocus);

  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  giveIcon(buttons->button(QDialogButtonBox::Close), "window-close");
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* const all = new QPushButton(tr("Put &All Back"));
  all->setObjectName(QLatin1String("putAllBack"));
  all->setToolTip(tr("Takes back everything that is not saved."));
  all->setAutoDefault(false);
  connect(all, &QPushButton::clicked, this,
          [this] { putBack([this] { controller_.saved.putAllBack(); }); });
  buttons->addButton(all, QDialogButtonBox::ActionRole);

  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(area_, 1);
  layout->addWidget(buttons);
  const int line = fontMetrics().lineSpacing();
  resize(36 * line, 16 * line);
  refresh();
}

std::vector<ChangesList::Row> ChangesList::rows() const {
  std::vector<Row> rows;
  for (const editor::Change& change : controller_.saved.changes()) {
    const editor::Setting& setting =
        *controller_.settingsInKeyOrder().at(document::indexOf(change.key));
    const std::string& saved = controller_.saved.savedValue(change.key);
    rows.push_back({plainText(translatedLabel(setting.label())),
                    tr("%1 → %2").arg(valueText(setting, saved, change.was),
                                      valueText(setting, setting.valueToSave(), change.is)),
                    [this, key = change.key] { controller_.saved.putBack(key); }});
  }
  const editor::VolumeChanges volumes = controller_.saved.volumeChanges();
  if (volumes.any()) {
    rows.push_back(
        {tr("Disk images"), volumesText(volumes), [this] { controller_.saved.putVolumesBack(); }});
  }
  return rows;
}

// Ends the edit first: a half-typed text would otherwise be committed later and undo the action.
void ChangesList::putBack(const std::function<void()>& action) {
  edits_.endEditing();
  action();
  refresh();
}

void ChangesList::refresh() {
  const std::vector<Row> rows = this->rows();
  QStringList texts;
  for (const Row& row : rows) {
    texts.append(row.what + QLatin1Char('\n') + row.how);
  }
  if (rows.empty()) {
    close();
  } else if (texts != shown_) {
    // deleteLater() since refresh() may run inside clicked() of a button of the former table.
    if (QWidget* const former = area_->takeWidget()) {
      former->hide();
      former->deleteLater();
    }
    area_->setWidget(table(rows));
  }
  shown_ = texts;
}

QWidget* ChangesList::table(const std::vector<Row>& rows) {
  auto* const content = new QWidget;
  auto* const grid = new QGridLayout(content);
  grid->setColumnStretch(1, 1);
  for (const Row& row : rows) {
    const int number = grid->rowCount();
    auto* const button = new QPushButton(tr("Put Back"));
    button->setObjectName(QLatin1String("putBack"));
    button->setAutoDefault(false);
    button->setAccessibleName(tr("Put back %1").arg(row.what));
    button->setAccessibleDescription(row.how);
    connect(button, &QPushButton::clicked, this, [this, action = row.putBack] { putBack(action); });
    grid->addWidget(wrappedLabel(row.what), number, 0, Qt::AlignVCenter);
    grid->addWidget(wrappedLabel(row.how), number, 1, Qt::AlignVCenter);
    grid->addWidget(button, number, 2, Qt::AlignVCenter);
  }
  grid->setRowStretch(grid->rowCount(), 1);
  return content;
}

}  // namespace desktop
