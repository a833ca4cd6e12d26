#include "desktop/run.h"

#include <QApplication>

#include "desktop/application.h"
#include "desktop/panels.h"
#include "desktop/settings_window.h"
#include "desktop/signals.h"
#include "editor/view_controller.h"
#include "platform/host.h"

namespace desktop {

int run(int& argc, char** argv, const Surroundings& surroundings) {
  const QApplication qt(argc, argv);
  QApplication::setDesktopFileName(QLatin1String("org.quillon.Settings"));
  QApplication::setApplicationName(QLatin1String("quillon-settings"));
  QApplication::setApplicationVersion(QLatin1String(surroundings.version));

  Application application;
  Panels panels;
  platform::ProcessWorkspace workspace(surroundings.homeDirectory);
  platform::NotificationCenter notifications;
  const platform::Host host{surroundings.homeDirectory,
                            surroundings.configHome,
                            surroundings.bundle,
                            surroundings.output,
                            panels,
                            workspace,
                            application,
                            notifications};
  editor::ViewController controller(host);
  controller.viewDidLoad();
  SettingsWindow window(controller, host, application.edits);
  panels.setWindow(&window);
  const SignalGuard guard(application);
  window.show();
  return QApplication::exec();
}

}  // namespace desktop
