#pragma once

#include <QTabWidget>
#include <QWidget>

namespace desktop {

/// The tab that a widget is on; -1 where it is on none.
int tabOf(const QTabWidget& tabs, const QWidget* widget);

/// Shows the tab of a widget, if it has one, gives the widget the focus, and draws a frame around
/// it for a moment.
void leadTo(QTabWidget& tabs, QWidget* widget);

}  // namespace desktop
