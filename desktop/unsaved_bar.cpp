#include "desktop/unsaved_bar.h"

#include <QHBoxLayout>
#include <QTime>

#include "desktop/texts.h"

namespace desktop {
namespace {

using Kind = editor::Outcome::Kind;
using platform::TextColor;
using namespace std::chrono_literals;

constexpr auto savedIsTold = 60s;

}  // namespace

UnsavedBar::UnsavedBar(editor::ViewController& controller, Edits& edits)
    : controller_(controller),
      edits_(edits),
      changesButton_(new QPushButton),
      savedLine_(new StatusLine) {
  changesButton_->setObjectName(QLatin1String("changesButton"));
  changesButton_->setFlat(true);
  changesButton_->setToolTip(tr("Lists what is not saved, to look at it or to take it back."));
  changesButton_->setAccessibleDescription(changesButton_->toolTip());
  changesButton_->hide();
  connect(changesButton_, &QPushButton::clicked, this, &UnsavedBar::openList);
  savedLine_->setObjectName(QLatin1String("savedLine"));
  savedLine_->setMinimumHeight(0);
  savedLine_->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
  savedLine_->hide();
  fading_.setSingleShot(true);
  connect(&fading_, &QTimer::timeout, this, &UnsavedBar::tellNothing);

  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addStretch(1);
  layout->addWidget(savedLine_, 3);
  layout->addWidget(changesButton_);
}

void UnsavedBar::refresh() {
  const editor::Outcome& outcome = controller_.outcome();
  if (outcome.number != toldNumber_) {
    tell(outcome);
  } else if (savedLine_->isVisibleTo(this) &&
             (toldRevision_ != controller_.volumes.tableView.revision() ||
              toldValues_ != controller_.saved.valuesToSave())) {
    tellNothing();
  }
  showCount();
}

void UnsavedBar::showCount() {
  const auto count = static_cast<int>(controller_.saved.changes().size()) +
                     (controller_.saved.volumesChanged() ? 1 : 0);
  // Two texts instead of tr() with a count: English would need a translation file for its plurals.
  const QString text = count == 1 ? tr("1 unsaved change") : tr("%1 unsaved changes").arg(count);
  // Only where it differs: setText() and setVisible() lay the window out, which leads to refresh()
  // once more, and on without end.
  if (count > 0 && changesButton_->text() != text) {
    changesButton_->setText(text);
  }
  if (changesButton_->isVisibleTo(this) != (count > 0)) {
    changesButton_->setVisible(count > 0);
  }
  if (list_) {
    list_->refresh();
  }
}

void UnsavedBar::tell(const editor::Outcome& outcome) {
  toldNumber_ = outcome.number;
  toldRevision_ = controller_.volumes.tableView.revision();
  toldValues_ = controller_.saved.valuesToSave();
  fading_.stop();
  const QString time = QTime::currentTime().toString(QLatin1String("HH:mm"));
  switch (outcome.kind) {
    case Kind::saved:
      savedLine_->show(tr("Saved %1").arg(time), TextColor::standard);
      fading_.start(savedIsTold);
      break;
    case Kind::started:
      savedLine_->show(tr("Quillon was started %1").arg(time), TextColor::standard);
      break;
    case Kind::notStarted:
      savedLine_->show(tr("Quillon was not started: it could not be executed"), TextColor::red);
      break;
    case Kind::notSaved:
      savedLine_->show(tr("The file was not saved"), TextColor::red);
      break;
  }
  savedLine_->setVisible(true);
}

void UnsavedBar::tellNothing() { savedLine_->hide(); }

void UnsavedBar::openList() {
  edits_.endEditing();
  if (list_ == nullptr) {
    list_ = new ChangesList(controller_, edits_, window());
  }
  list_->show();
  list_->raise();
  list_->activateWindow();
}

}  // namespace desktop
