#include "desktop/run.h"

#include <QApplication>

#include "desktop/application.h"
#include "desktop/panels.h"
#include "desktop/settings_window.h"
#include "desktop/texts.h"
#include "editor/view_controller.h"
#include "platform/host.h"

namespace desktop {

int run(int& argc, char** argv, const Surroundings& surroundings) {
  const QApplication qt(argc, argv);
  QApplication::setDesktopFileName(QLatin1String("org.quillon.Settings"));
  QApplication::setApplicationName(QLatin1String("quillon-settings"));

  Application application;
  Panels panels;
  platform::ProcessWorkspace workspace(surroundings.homeDirectory);
  platform::NotificationCenter notifications;
  editor::ViewController controller({surroundings.homeDirectory, surroundings.configHome,
                                     surroundings.bundle, surroundings.output, panels, workspace,
                                     application, notifications});
  controller.viewDidLoad();
  SettingsWindow window(controller, application.edits,
                        shown(surroundings.bundle.path() + "/Contents/Resources"));
  panels.setWindow(&window);
  window.show();
  return QApplication::exec();
}

}  // namespace desktop
