#include "desktop/run.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "desktop/appearance.h"
#include "desktop/application.h"
#include "desktop/panels.h"
#include "desktop/settings_window.h"
#include "desktop/signals.h"
#include "desktop/texts.h"
#include "editor/view_controller.h"
#include "platform/host.h"

namespace desktop {

namespace {

// English needs no file. What counts is the first language that a person wants to read, which need
// not be that of numbers and dates.
void translate(QTranslator& translator, const char* name, const QString& folder) {
  const QLocale locale;
  const auto first = QLocale(locale.uiLanguages().value(0)).language();
  if (first != QLocale::English && first != QLocale::C &&
      translator.load(locale, QLatin1String(name), QLatin1String("_"), folder)) {
    QCoreApplication::installTranslator(&translator);
  }
}

}  // namespace

int run(int& argc, char** argv, const Surroundings& surroundings) {
  const QApplication qt(argc, argv);
  QApplication::setDesktopFileName(QLatin1String("org.quillon.settings"));
  QApplication::setApplicationName(QLatin1String("quillon-settings"));
  QApplication::setApplicationVersion(QLatin1String(surroundings.version));

  makeReadable();
  QTranslator ours;
  QTranslator qts;
  translate(ours, "quillon-settings",
            toQString(surroundings.bundle.path() + "/Contents/Resources"));
  translate(qts, "qtbase", QLibraryInfo::path(QLibraryInfo::TranslationsPath));

  Application application;
  Panels panels;
  platform::ProcessWorkspace workspace(surroundings.homeDirectory);
  platform::NotificationCenter notifications;
  const platform::Host host{surroundings.homeDirectory,
                            surroundings.configHome,
                            surroundings.dataHome,
                            surroundings.bundle,
                            surroundings.output,
                            panels,
                            workspace,
                            application,
                            notifications};
  editor::ViewController controller(host);
  controller.viewDidLoad();
  SettingsWindow window(controller, host, application.edits);
  panels.setWindow(&window, &window.memory().folder);
  const SignalGuard guard(application);
  window.show();
  return QApplication::exec();
}

}  // namespace desktop
