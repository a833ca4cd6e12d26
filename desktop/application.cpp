#include "desktop/application.h"

#include <unistd.h>

#include <QApplication>
#include <QPointer>
#include <QWidget>

namespace desktop {

// Not QCoreApplication::quit(): it closes the windows first, and closing the settings window calls
// terminate() again.
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
  // ViewController::save() disables the field right after this call. Qt then gives the focus to
  // some other widget: it is put back to where the person was typing.
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
