#include <QtTest/qtestspontaneevent.h>

#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>
#include <set>

#include "tests/desktop/window_fixture.h"
#include "tests/support/model.h"

namespace {

using document::Key;

constexpr auto control = Qt::ControlModifier;
constexpr auto alt = Qt::AltModifier;

class Editing : public tests::WindowTest {
 protected:
  // What is deepest gets it first.
  static void wheel(QWidget* widget, int turn) {
    QWidget* const inner = widget->childAt(widget->rect().center());
    QWidget* const target = inner != nullptr ? inner : widget;
    const QPointF place = target->rect().center();
    QWheelEvent event(place, target->mapToGlobal(place), {}, {0, turn}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);  // others are not passed on
    qApp->notify(target, &event);
  }
};

TEST_F(Editing, WhatIsBeingTypedIsPartOfTheSaveHoweverItIsAskedFor) {
  const auto saveByMouse = [this] { click("savePrefs"); };
  const std::vector<std::pair<const char*, std::function<void()>>> ways = {
      {"Return", [&] { key(Qt::Key_Return), saveByMouse(); }},
      {"Tab", [&] { key(Qt::Key_Tab), saveByMouse(); }},
      {"click elsewhere", [&] { click("modelID"), key(Qt::Key_Escape), saveByMouse(); }},
      {"mouse", saveByMouse},
      {"Ctrl+S", [&] { key(Qt::Key_S, control); }},
      {"Alt+S", [&] { key(Qt::Key_S, alt), QTest::qWait(200); }},
      {"Ctrl+Return", [&] { key(Qt::Key_Return, control); }},
      {"Alt+T", [&] { key(Qt::Key_T, alt), QTest::qWait(200); }},
      {"menu", [&] { key(Qt::Key_F, alt), key(Qt::Key_S); }}};
  // Every other time, an accessibility tool sets the first texts.
  bool byTool = false;
  const auto write = [&](const char* name, const char* text) {
    auto* const box = qobject_cast<QComboBox*>(find(name));
    QWidget* const field = box != nullptr ? box->lineEdit() : find(name);
    byTool ? (void)(field->setFocus(), QAccessible::queryAccessibleInterface(field)->setText(
                                           QAccessible::Value, QLatin1String(text)))
           : typeInto(name, text);
  };
  qsizetype launches = 0;
  for (const auto& [name, save] : ways) {
    SCOPED_TRACE(name);
    byTool = !byTool;
    open("ramsize 67108864\nrom /old\nscreen win/800/600\n");
    showTab("Display");
    write("screenWidth", "123");
    showTab("Machine");
    write("romFile", "/new rom");
    typeInto("ramSizeMB", "37");
    const QWidget* const focus = QApplication::focusWidget();
    save();
    QTest::qWait(0);
    EXPECT_TRUE(QApplication::focusWidget() == focus ||
                QApplication::focusWidget() == find("savePrefs"));
    const tests::Model wanted("ramsize 38797312\nrom /new rom\nscreen win/123/600\n");
    EXPECT_EQ(file(), wanted.text());
    launches += QString::fromStdString(fake.said()).count(QLatin1String("<launch"));
  }
  EXPECT_EQ(launches, 2);
}

TEST_F(Editing, APastedTextIsOneLine) {
  open("rom /old\n");
  QApplication::clipboard()->setText(QLatin1String("/new\nramsize 1\r\n\n"));
  for (const auto& [tab, name] : {std::pair("Machine", "romFile"), {"Network", "etherPort"}}) {
    showTab(tab);
    typeInto(name, "");
    key(Qt::Key_V, control);
    key(Qt::Key_S, control);
  }
  EXPECT_EQ(file(),
            tests::Model("ramsize 67108864\nrom /new ramsize 1\nether /new ramsize 1\n").text());
}

TEST_F(Editing, OnlyAnAcceptedTextGetsIntoTheRamBox) {
  QWidget other;
  // What is typed, keys (L: the list is opened, W: a look at another window), what is then shown.
  for (const char* const row :
       {"1|R|1", "1|DDET|1", "1|ER|1", "1|DT|1", "1|DR|1024", "|LHR|1024", "512|T|512", "32|EWR|32",
        "0|R|64", "64 MB|R|64", "1.5|T|64", "|R|64", "8796093022208|R|64"}) {
    SCOPED_TRACE(row);
    const QStringList parts = QString::fromLatin1(row).split(QLatin1Char('|'));
    open("ramsize 67108864\n");
    showTab("Machine");
    typeInto("ramSizeMB", parts[0].toLatin1());
    QTest::qWait(0);
    for (const char code : parts[1].toStdString()) {
      if (code == 'W') {
        other.show();
        activate(&other);
        activate(&*window);
      } else if (code == 'L') {
        find<QComboBox>("ramSizeMB")->showPopup();
      } else {
        key(code == 'R'   ? Qt::Key_Return
            : code == 'T' ? Qt::Key_Tab
            : code == 'D' ? Qt::Key_Down
            : code == 'E' ? Qt::Key_Escape
                          : Qt::Key_Home);
      }
    }
    const auto* const box = find<QComboBox>("ramSizeMB");
    EXPECT_EQ(box->currentText(), parts[2]);
    EXPECT_EQ(box->count(), parts[2] == parts[0] ? 11 : 10) << "what was typed is listed";
    EXPECT_EQ(value(Key::ramsize), std::to_string(parts[2].toInt() << 20));
  }
}

TEST_F(Editing, NothingChangesOnTheWayPast) {
  const std::string odd =
      "screen dga/1/Maximal\nseriala  a  b\nudpport 99999999999\nramsize 0x4000000\nframeskip 3\n"
      "modelid 7\ncpu 9\nfpu true\nnosound yes\njitcachesize 3 MB\nkeycodes perhaps\n"
      "mousewheellines 0\n";
  open(odd);
  window->resize(300, 330);
  bool scrolled = false;
  for (int tab = 0; tab < tabs()->count(); ++tab) {
    tabs()->setCurrentIndex(tab);
    QTest::qWait(0);
    QWidget* const page = tabs()->currentWidget();
    const QScrollBar* const bar = qobject_cast<QScrollArea*>(page)->verticalScrollBar();
    for (QWidget* const widget : page->findChildren<QWidget*>()) {
      if (widget->isVisible() && widget->isEnabled() && widget->focusPolicy() != Qt::NoFocus) {
        widget->setFocus();
        if (qobject_cast<QAbstractButton*>(widget) == nullptr) {
          key(Qt::Key_Return);
        }
        const int before = bar->value();
        wheel(widget, before > 0 ? 120 : -120);
        scrolled = scrolled || (bar->value() != before && qobject_cast<QComboBox*>(widget));
      }
    }
    wheel(tabs()->tabBar(), tab == 0 ? -120 : 120);
    EXPECT_EQ(tabs()->currentIndex(), tab);
  }
  EXPECT_TRUE(scrolled);
  key(Qt::Key_S, control);
  EXPECT_EQ(file(), tests::Model(odd).text());
}

// In the window that is in front.
void checkNamesAndLetters() {
  QWidget* const top = QApplication::activeWindow();
  std::set<QString> letters;
  const auto take = [&](const QString& text) {
    const QString letter = QKeySequence::mnemonic(text).toString();
    EXPECT_TRUE(letter.isEmpty() || letters.insert(letter).second) << text.toStdString();
  };
  for (QWidget* const widget : top->findChildren<QWidget*>()) {
    if (!widget->isVisible() || widget->window() != top) {
      continue;
    }
    take(widget->inherits("QLineEdit") ? QString() : widget->property("text").toString());
    for (const QAction* const menu : widget->actions()) {
      take(widget->inherits("QMenuBar") ? menu->text() : QString());
    }
    if ((widget->focusPolicy() & Qt::TabFocus) != 0 && widget->focusProxy() == nullptr) {
      const auto* const face = QAccessible::queryAccessibleInterface(widget);
      EXPECT_FALSE(face->text(QAccessible::Name).isEmpty())
          << widget->metaObject()->className() << " " << widget->objectName().toStdString();
    }
  }
  EXPECT_GT(letters.size(), 3U);
}

TEST_F(Editing, EverythingHasANameAndALetterOfItsOwn) {
  open("disk /a\n");
  app::sharedVar::scsiTabState = true;
  fake.notifications.post("NotificationID");
  for (int tab = 0; tab < tabs()->count(); ++tab) {
    SCOPED_TRACE(tab);
    tabs()->setCurrentIndex(tab);
    checkNamesAndLetters();
  }
  for (const char* const opening : {"openPreferences", "bitCreate"}) {
    SCOPED_TRACE(opening);
    showTab("Volumes");
    click(opening);
    QTest::qWait(0);
    checkNamesAndLetters();
    QApplication::activeWindow()->close();
    activate(&*window);
  }
}

}  // namespace
