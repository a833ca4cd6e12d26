#include "desktop/application.h"

#include <unistd.h>

#include <QApplication>
#include <QPointer>
#include <QWidget>

namespace desktop {

// QCoreApplication::quit would first close the windows, and closing the settings window calls this.
void Application::terminate() { QCoreApplication::exit(0); }

void Application::exitNow() { ::_exit(0); }

void Application::makeFirstResponder(platform::TextField& field) {
  edits.endEditing();
  QWidget* const widget = edits.widgetOf(field);
  if (widget == nullptr) {
    return;
  }
  const QPointer<QWidget> before = QApplication::focusWidget();
  widget->setFocus(Qt::OtherFocusReason);
  // A save disables the field at once, which would leave the focus nowhere: it goes back to where
  // the person was typing.
  QMetaObject::invokeMethod(
      widget,
      [widget, before] {
        if (!widget->isEnabled() && before) {
          before->setFocus(Qt::OtherFocusReason);
        }
      },
      Qt::QueuedConnection);
}

}  // namespace desktop
