#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QTimer>
#include <csignal>

#include "desktop/run.h"
#include "tests/support/temporary_folder.h"

namespace {

// One thing that happens: "close", a signal's number, a button's name or a menu entry's text.
void perform(QWidget* window, const QString& step) {
  const auto* const menus = window->findChild<QMenuBar*>();
  for (QAction* const entry : menus->findChildren<QAction*>()) {
    if (entry->text() == step) {
      return entry->trigger();
    }
  }
  if (auto* const button = window->findChild<QAbstractButton*>(step)) {
    button->click();
  } else if (step == QLatin1String("close")) {
    window->close();
  } else {
    (void)std::raise(step.toInt());
  }
}

// Runs the program in a home and a bundle, edits something and performs the steps one by one.
int runProgram(int argc, char** argv) {
  platform::DescriptorOutput output(1);
  QTimer person;
  int next = 4;
  const auto act = [&] {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      // It is all there only some time after it has come up.
      auto* const field = window->findChild<QLineEdit*>(QLatin1String("romFile"));
      if (field != nullptr && next < argc) {
        field->setText(QLatin1String("/never/saved/unless/asked"));
        return perform(window, QString::fromUtf8(argv[next++]));
      }
    }
  };
  QObject::connect(&person, &QTimer::timeout, act);
  QMetaObject::invokeMethod(
      &person, [&] { person.start(5); }, Qt::QueuedConnection);
  const std::string home = argv[2];
  return desktop::run(
      argc, argv,
      {home, home + "/.config", home + "/.local/share", platform::Bundle(argv[3]), output, "test"});
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  if (argc > 4 && std::string_view(argv[1]) == "--run") {
    return runProgram(argc, argv);
  }
  // Qt keeps settings of its own in the home folder.
  const tests::TemporaryFolder home;
  qputenv("HOME", home.path().c_str());
  qunsetenv("XDG_CONFIG_HOME");
  const QApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
