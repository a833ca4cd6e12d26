#include "desktop/application.h"

#include <unistd.h>

#include <QApplication>
#include <QWidget>

#include "desktop/texts.h"

namespace desktop {

// Not quit(), which would first close the windows and so come here once more.
void Application::terminate() { QCoreApplication::exit(0); }

void Application::exitNow() { ::_exit(0); }

void Application::makeFirstResponder(platform::TextField& field) {
  edits.endEditing();
  for (const QWidget* const window : QApplication::topLevelWidgets()) {
    if (auto* const widget = window->findChild<QWidget*>(shown(field.name()))) {
      widget->setFocus(Qt::OtherFocusReason);
      return;
    }
  }
}

}  // namespace desktop
