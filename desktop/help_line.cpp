#include "desktop/help_line.h"

#include <QApplication>
#include <QEvent>

namespace desktop {
namespace {

constexpr int lines = 3;

QString helpAt(const QWidget* widget) {
  while (widget != nullptr && widget->whatsThis().isEmpty() && !widget->isWindow()) {
    widget = widget->parentWidget();
  }
  return widget != nullptr ? widget->whatsThis() : QString();
}

}  // namespace

HelpLine::HelpLine() {
  setObjectName(QLatin1String("helpLine"));
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setAlignment(Qt::AlignLeading | Qt::AlignTop);
  setText(tr("Move to a setting to read here what it does."));
  // The same height always: nothing moves when the text changes.
  setFixedHeight(lines * fontMetrics().lineSpacing());
}

void HelpLine::follow(QWidget* parent) {
  for (QWidget* const widget : parent->findChildren<QWidget*>()) {
    if (!widget->whatsThis().isEmpty()) {
      widget->installEventFilter(this);
    }
  }
}

bool HelpLine::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Enter || event->type() == QEvent::FocusIn) {
    setText(helpAt(static_cast<QWidget*>(watched)));
  } else if (event->type() == QEvent::Leave) {
    setText(helpAt(QApplication::focusWidget()));
  }
  return QLabel::eventFilter(watched, event);
}

}  // namespace desktop
