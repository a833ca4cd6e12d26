#include "desktop/run.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QTranslator>

#include "desktop/application.h"
#include "desktop/panels.h"
#include "desktop/settings_window.h"
#include "desktop/signals.h"
#include "desktop/texts.h"
#include "editor/view_controller.h"
#include "platform/host.h"

namespace desktop {

namespace {

// English needs no file.
void translate(QTranslator& translator, const char* name, const QString& folder) {
  const QLocale locale;
  if (locale.language() != QLocale::English && locale.language() != QLocale::C &&
      translator.load(locale, QLatin1String(name), QLatin1String("_"), folder)) {
    QCoreApplication::installTranslator(&translator);
  }
}

// Some dark themes do not say how hints in empty fields look, and leave them dark.
void makeHintsReadable() {
  QPalette palette = QApplication::palette();
  const int background = palette.color(QPalette::Base).lightness();
  const int hint = palette.color(QPalette::PlaceholderText).lightness();
  if ((background < 128) == (hint < 128)) {
    QColor color = palette.color(QPalette::Text);
    color.setAlpha(170);
    palette.setColor(QPalette::PlaceholderText, color);
    QApplication::setPalette(palette);
  }
}

}  // namespace

int run(int& argc, char** argv, const Surroundings& surroundings) {
  const QApplication qt(argc, argv);
  QApplication::setDesktopFileName(QLatin1String("org.quillon.Settings"));
  QApplication::setApplicationName(QLatin1String("quillon-settings"));
  QApplication::setApplicationVersion(QLatin1String(surroundings.version));

  makeHintsReadable();
  QTranslator ours;
  QTranslator qts;
  translate(ours, "quillon-settings", shown(surroundings.bundle.path() + "/Contents/Resources"));
  translate(qts, "qtbase", QLibraryInfo::path(QLibraryInfo::TranslationsPath));

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
