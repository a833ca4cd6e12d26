#include "desktop/application.h"

#include <unistd.h>

#include <QApplication>
#include <QPointer>
#include <QWidget>

namespace desktop {

// Not quit(), which would first close the windows and so come here once more.
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
  // A save disables the field again at once. Whoever saves while typing goes on typing there.
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
