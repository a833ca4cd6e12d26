#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTabBar>
#include <QTest>
#include <QWindow>
#include <optional>
#include <string>
#include <vector>

#include "desktop/application.h"
#include "desktop/lead_to.h"
#include "desktop/settings_window.h"
#include "document/key_table.h"
#include "editor/view_controller.h"
#include "tests/support/fake_host.h"

namespace tests {

/// The running application, but for what would end it.
struct TestedApplication : desktop::Application {
  explicit TestedApplication(platform::Output& log) : output(log) {}

  platform::Output& output;

  void terminate() override { output.print("<terminate>"); }
  void exitNow() override { output.print("<exit>"); }
};

/// The settings window over a home of its own, driven as a person does.
class WindowTest : public testing::Test {
 protected:
  void open(const std::string& preferences = {},
            const desktop::FactsSource& facts = checks::gather) {
    openFirstPage(preferences, facts);
    window->completePages();
  }

  /// As it is until it has been painted for the first time.
  void openFirstPage(const std::string& preferences = {},
                     const desktop::FactsSource& facts = checks::gather) {
    fake.home.write(FakeHost::prefs, preferences);
    start(fake.panels, facts);
  }

  void start(platform::Panels& panels, const desktop::FactsSource& facts = checks::gather) {
    const platform::Host host = fake.host(application, panels);
    window.reset();
    controller.emplace(host);
    controller->viewDidLoad();
    window.emplace(*controller, host, application.edits, facts);
    window->show();
    activate(&*window);
  }

  static void activate(QWidget* top) {
    top->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(top)) << top->objectName().toStdString();
  }

  /// A widget of the front-most windows or of the settings window, by the name of its outlet.
  template <typename Widget = QWidget>
  Widget* find(const char* name) const {
    for (QWidget* const top : QApplication::topLevelWidgets()) {
      if (auto* const found = top->findChild<Widget*>(QLatin1String(name))) {
        return found;
      }
    }
    throw std::logic_error(std::string("no widget ") + name);
  }

  QTabWidget* tabs() const { return find<QTabWidget>("tabViewC"); }

  /// The same, seen: its tab is in front.
  QWidget* reach(const char* name) const {
    QWidget* const widget = find(name);
    tabs()->setCurrentIndex(desktop::tabOf(*tabs(), widget));  // of none: stays
    return widget;
  }
  QWidget* enter(const char* name) const {
    QWidget* const widget = reach(name);
    widget->setFocus(Qt::TabFocusReason);
    return widget;
  }

  std::string text(const char* name) const {
    return find(name)->property("text").toString().toStdString();
  }
  /// Waits until a widget shows a text.
  void expectText(const char* name, const std::string& wanted) const {
    EXPECT_TRUE(QTest::qWaitFor([&] { return text(name) == wanted; }))
        << name << " shows " << text(name);
  }

  QAction* menuEntry(const char* text) const {
    for (QAction* const entry : window->findChildren<QAction*>()) {
      if (entry->text() == QString::fromUtf8(text)) {
        return entry;
      }
    }
    throw std::logic_error(std::string("no menu entry ") + text);
  }

  /// Presses a key as it is written in menus: "Ctrl+S". Keys go to the window that has the focus.
  static void press(const std::string& keys) {
    const QKeyCombination pressed = QKeySequence(QString::fromStdString(keys))[0];
    ASSERT_NE(pressed.key(), Qt::Key_unknown) << keys;
    QTest::keyClick(front(), pressed.key(), pressed.keyboardModifiers());
  }
  static void type(const char* text) {
    for (; *text != '\0'; ++text) {
      QTest::keyClick(front(), *text);
    }
  }
  static QWindow* front() {
    QWidget* const popup = QApplication::activePopupWidget();
    return (popup != nullptr ? popup : QApplication::activeWindow())->windowHandle();
  }

  void click(const char* name) const {
    QWidget* const widget = reach(name);
    ASSERT_TRUE(widget->isVisible() && widget->isEnabled()) << name;
    // Behind its text a check box does not answer.
    const bool checkable = widget->property("checkable").toBool();
    const QPoint place(checkable ? 10 : widget->width() / 2, widget->height() / 2);
    QTest::mouseClick(widget->window()->windowHandle(), Qt::LeftButton, {},
                      widget->mapTo(widget->window(), place));
  }

  /// Replaces the text of a field, without ending the edit.
  void typeInto(const char* name, const char* text) const {
    enter(name);
    press("Ctrl+A");
    press("Backspace");
    type(text);
  }

  /// Presses a button and returns the window that it opens.
  QWidget* openBy(const char* button) const {
    click(button);
    QTest::qWait(0);
    EXPECT_NE(QApplication::activeWindow(), &*window) << button;
    return QApplication::activeWindow();
  }
  /// Leaves such a window by a key.
  void leaveBy(const char* keys) {
    press(keys);
    QTest::qWait(0);
    activate(&*window);
  }

  std::string file() const { return fake.home.read(fake.prefs); }
  std::string value(document::Key wanted) const { return controller->preferences.value(wanted); }

  FakeHost fake;
  TestedApplication application{fake.output};
  std::optional<editor::ViewController> controller;
  std::optional<desktop::SettingsWindow> window;
};

}  // namespace tests
