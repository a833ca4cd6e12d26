#include "desktop/help_line.h"

#include <QApplication>
#include <QEvent>
#include <algorithm>

#include "desktop/texts.h"

namespace desktop {
namespace {

constexpr int lines = 3;
constexpr int mostLines = 5;

QString helpAt(const QWidget* widget) {
  while (widget != nullptr && widget->whatsThis().isEmpty() && !widget->isWindow()) {
    widget = widget->parentWidget();
  }
  return widget == nullptr || widget->whatsThis().isEmpty()
             ? HelpLine::tr("Move to a setting to read here what it does.")
             : widget->whatsThis();
}

}  // namespace

HelpLine::HelpLine() {
  setObjectName(QLatin1String("helpLine"));
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setAlignment(leadingSide() | Qt::AlignTop);
  setText(helpAt(nullptr));
  connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, const QWidget* now) {
    if (now != nullptr && now->window() == window()) {
      explain(now);
    }
  });
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

void HelpLine::explain(const QWidget* widget) { tell(helpAt(widget)); }

void HelpLine::tell(const QString& text) {
  setText(text);
  // A narrow window with large letters gets more, and keeps it.
  if (isVisible()) {
    const int most = mostLines * fontMetrics().lineSpacing();
    setFixedHeight(std::max(height(), std::min(heightForWidth(width()), most)));
  }
}

bool HelpLine::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Enter) {
    explain(static_cast<QWidget*>(watched));
  } else if (event->type() == QEvent::Leave) {
    explain(QApplication::focusWidget());
  }
  return QLabel::eventFilter(watched, event);
}

}  // namespace desktop
