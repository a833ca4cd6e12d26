#include "desktop/edits.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QFocusEvent>
#include <algorithm>
#include <utility>

namespace desktop {
namespace {

// The preferences file has one line for each setting. The next line of a pasted text would be read
// as another setting.
QString oneLine(QString text) {
  while (text.endsWith(QLatin1Char('\n')) || text.endsWith(QLatin1Char('\r'))) {
    text.chop(1);
  }
  return text.replace(QLatin1String("\r\n"), QLatin1String(" "))
      .replace(QLatin1Char('\n'), QLatin1Char(' '))
      .replace(QLatin1Char('\r'), QLatin1Char(' '));
}

}  // namespace

void Edits::endEditing() {
  std::erase_if(edits_, [](const QPointer<PendingEdit>& edit) { return edit.isNull(); });
  const auto edits = edits_;
  for (const QPointer<PendingEdit>& edit : edits) {
    if (edit) {
      edit->endEditing();
    }
  }
}

QWidget* Edits::widgetOf(const platform::TextField& control) const {
  const auto found = std::find_if(
      edits_.begin(), edits_.end(),
      [&](const QPointer<PendingEdit>& edit) { return edit && &edit->control() == &control; });
  return found != edits_.end() ? (*found)->focusWidget() : nullptr;
}

PendingEdit::PendingEdit(QLineEdit* field, const platform::TextField& control, Edits& edits,
                         TextCallback typed, TextCallback commit, Commits commits)
    : field_(field),
      control_(control),
      commit_(std::move(commit)),
      commits_(commits),
      settled_(field->text()) {
  edits.add(this);
  focusWidget()->installEventFilter(this);
  connect(field, &QLineEdit::textEdited, this,
          [this, typed = std::move(typed)](const QString& text) {
            text_ = oneLine(text);
            typed_ = true;
            if (text_ != text) {
              field_->setText(text_);
            }
            typed(text_);
          });
  connect(field, &QLineEdit::returnPressed, this, &PendingEdit::returnPressed);
}

void PendingEdit::settle() {
  settled_ = field_->text();
  typed_ = false;
}

void PendingEdit::endEditing() {
  if (isPending()) {
    const QString text = typed_ ? text_ : oneLine(field_->text());
    settle();
    commit_(text);
  }
}

void PendingEdit::finish() {
  if (commits_ == Commits::always && !isPending()) {
    commit_(field_->text());
  }
  endEditing();
}

void PendingEdit::returnPressed() {
  // Return on a completion of the open list: QCompleter::activated follows and commits that text.
  const QCompleter* const completer = field_->completer();
  const QAbstractItemView* const popup = completer != nullptr ? completer->popup() : nullptr;
  if (popup == nullptr || !popup->isVisible() || !popup->currentIndex().isValid()) {
    finish();
  }
}

bool PendingEdit::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusOut) {
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    // For these two the edit goes on: the focus comes back when the menu closes or the window is
    // active again.
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
      finish();
    }
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace desktop
