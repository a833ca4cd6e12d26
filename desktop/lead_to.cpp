#include "desktop/lead_to.h"

#include <QRubberBand>
#include <QScrollArea>
#include <QTimer>

namespace desktop {
namespace {

void pointOut(QWidget* widget) {
  constexpr int momentShown = 1500;  // milliseconds
  constexpr int distance = 3;        // pixels
  auto* const frame = new QRubberBand(QRubberBand::Rectangle, widget->parentWidget());
  frame->setObjectName(QLatin1String("pointedOut"));
  frame->setGeometry(widget->geometry().adjusted(-distance, -distance, distance, distance));
  frame->show();
  QTimer::singleShot(momentShown, frame, &QObject::deleteLater);
}

}  // namespace

int tabOf(const QTabWidget& tabs, const QWidget* widget) {
  for (int index = 0; index < tabs.count(); ++index) {
    if (tabs.widget(index)->isAncestorOf(widget)) {
      return index;
    }
  }
  return -1;
}

void leadTo(QTabWidget& tabs, QWidget* widget) {
  if (const int tab = tabOf(tabs, widget); tab >= 0) {
    tabs.setCurrentIndex(tab);
    tabs.widget(tab)->findChild<QScrollArea*>()->ensureWidgetVisible(widget);
  }
  widget->window()->activateWindow();
  widget->setFocus(Qt::ShortcutFocusReason);
  pointOut(widget);
}

}  // namespace desktop
