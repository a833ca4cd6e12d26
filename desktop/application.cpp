#include "desktop/application.h"

#include <unistd.h>

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include "desktop/texts.h"

namespace desktop {

// Not quit(), which would first close the windows and so come here once more.
void Application::terminate() { QCoreApplication::exit(0); }

void Application::exitNow() { ::_exit(0); }

void Application::makeFirstResponder(platform::TextField& field) {
  edits.endEditing();
  for (const QWidget* const window : QApplication::topLevelWidgets()) {
    if (auto* const widget = window->findChild<QWidget*>(toQString(field.name()))) {
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
      return;
    }
  }
}

}  // namespace desktop
