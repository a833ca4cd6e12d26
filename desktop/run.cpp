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

// Takes the first of the languages that a person wants to read for which there is a file. English
// needs none: QTranslator::load, given the whole list, would go on behind it.
void translate(QTranslator& translator, const char* name, const QString& folder) {
  for (const QString& wanted : QLocale().uiLanguages()) {
    const QLocale language(wanted);
    if (language.language() == QLocale::English || language.language() == QLocale::C) {
      return;
    }
    if (translator.load(language, QLatin1String(name), QLatin1String("_"), folder)) {
      QCoreApplication::installTranslator(&translator);
      return;
    }
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
