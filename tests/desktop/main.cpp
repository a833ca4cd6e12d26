#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QTimer>
#include <csignal>
#include <functional>

#include "desktop/run.h"

namespace {

// One thing that happens: "close", a signal's number, a button's name or a menu entry's text.
void perform(QWidget* window, const QString& step) {
  if (const int number = step.toInt(); number != 0) {
    (void)std::raise(number);
  } else if (step == QLatin1String("close")) {
    window->close();
  } else if (auto* const button = window->findChild<QAbstractButton*>(step)) {
    button->click();
  } else {
    for (QAction* const entry : window->findChildren<QAction*>()) {
      if (entry->text() == step) {
        entry->trigger();
      }
    }
  }
}

// Runs the program in a home and a bundle, edits something and performs the steps one by one.
int runProgram(int argc, char** argv) {
  platform::DescriptorOutput output(1);
  QObject person;
  QStringList steps;
  for (int index = 4; index < argc; ++index) {
    steps.append(QString::fromUtf8(argv[index]));
  }
  const std::function<void()> act = [&] {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      // It is all there only some time after it has come up.
      if (auto* const field = window->findChild<QLineEdit*>(QLatin1String("romFile"))) {
        field->setText(QLatin1String("/never/saved/unless/asked"));
        perform(window, steps.takeFirst());
        break;
      }
    }
    if (!steps.isEmpty()) {
      QTimer::singleShot(5, &person, act);
    }
  };
  QMetaObject::invokeMethod(&person, act, Qt::QueuedConnection);
  const std::string home = argv[2];
  return desktop::run(argc, argv,
                      {home, home + "/.config", platform::Bundle(argv[3]), output, "test"});
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  if (argc > 4 && std::string_view(argv[1]) == "--run") {
    return runProgram(argc, argv);
  }
  const QApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
