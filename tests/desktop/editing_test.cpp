#include <QtTest/qtestspontaneevent.h>

#include <QAccessible>
#include <QCheckBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>
#include <set>

#include "tests/desktop/window_fixture.h"

namespace {

using app::sharedVar;
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
  struct Way {
    const char* name;
    std::function<void()> save;
  };
  const auto saveByMouse = [this] { click("savePrefs"); };
  const std::vector<Way> ways = {
      {"Return", [&] { key(Qt::Key_Return), saveByMouse(); }},
      {"Tab", [&] { key(Qt::Key_Tab), saveByMouse(); }},
      {"click elsewhere", [&] { click("modelID"), key(Qt::Key_Escape), saveByMouse(); }},
      {"mouse", saveByMouse},
      {"Ctrl+S", [&] { key(Qt::Key_S, control); }},
      {"Alt+S", [&] { key(Qt::Key_S, alt), QTest::qWait(200); }},
      {"Ctrl+Return", [&] { key(Qt::Key_Return, control); }},
      {"Alt+T", [&] { key(Qt::Key_T, alt), QTest::qWait(200); }},
      {"menu", [&] { key(Qt::Key_F, alt), key(Qt::Key_S); }}};
  for (const Way& way : ways) {
    SCOPED_TRACE(way.name);
    open("ramsize 67108864\nrom /old\nscreen win/800/600\n");
    showTab("Display");
    typeInto("screenWidth", "123");
    showTab("Machine");
    typeInto("romFile", "/new rom");
    typeInto("ramSizeMB", "37");
    const QWidget* const focus = QApplication::focusWidget();
    way.save();
    QTest::qWait(0);
    EXPECT_TRUE(QApplication::focusWidget() == focus ||
                QApplication::focusWidget() == find("savePrefs"));
    EXPECT_EQ(saved(Key::ramsize), "38797312");
    EXPECT_EQ(saved(Key::rom), "/new rom");
    EXPECT_EQ(saved(Key::screen), "win/123/600");
  }
  EXPECT_EQ(fake.workspace.launched.size(), 2U);
}

TEST_F(Editing, OnlyAnAcceptedTextGetsIntoTheRamBox) {
  struct Row {
    const char* typed;
    std::vector<int> keys;
    const char* stored;
    const char* shown;
    bool typedEntry;  // a new entry for what was typed
  };
  const std::vector<Row> rows = {
      {"1", {Qt::Key_Return}, "1048576", "1", true},
      {"1", {Qt::Key_Tab}, "1048576", "1", true},
      {"1", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Escape, Qt::Key_Tab}, "1048576", "1", true},
      {"1", {Qt::Key_Escape, Qt::Key_Return}, "1048576", "1", true},
      {"1", {Qt::Key_Down, Qt::Key_Tab}, "1048576", "1", true},
      {"1", {Qt::Key_Down, Qt::Key_Return}, "1073741824", "1024", false},
      {"512", {Qt::Key_Return}, "536870912", "512", true},
      {"512", {Qt::Key_Tab}, "536870912", "512", true},
      {"0", {Qt::Key_Return}, "67108864", "64", false},
      {"-1", {Qt::Key_Tab}, "67108864", "64", false},
      {"64 MB", {Qt::Key_Return}, "67108864", "64", false},
      {"1.5", {Qt::Key_Tab}, "67108864", "64", false},
      {"", {Qt::Key_Return}, "67108864", "64", false},
      {"8796093022208", {Qt::Key_Return}, "67108864", "64", false},
  };
  for (const Row& row : rows) {
    std::string trace = row.typed;
    for (const int code : row.keys) {
      trace += " " + QKeySequence(code).toString().toStdString();
    }
    SCOPED_TRACE(trace);
    open("ramsize 67108864\n");
    showTab("Machine");
    typeInto("ramSizeMB", row.typed);
    QTest::qWait(0);
    for (const int code : row.keys) {
      key(code);
    }
    auto* const box = find<QComboBox>("ramSizeMB");
    EXPECT_EQ(value(Key::ramsize), row.stored);
    EXPECT_EQ(box->currentText().toStdString(), row.shown);
    EXPECT_EQ(box->count(), row.typedEntry ? 11 : 10);
    key(Qt::Key_S, control);
    EXPECT_EQ(saved(Key::ramsize), row.stored);
  }
}

TEST_F(Editing, LookingAtAnotherWindowDoesNotTurnTypedTextIntoAChoice) {
  open("ramsize 67108864\n");
  showTab("Machine");
  typeInto("ramSizeMB", "32");
  key(Qt::Key_Escape);
  QWidget other;
  other.show();
  activate(&other);
  activate(&*window);
  key(Qt::Key_Return);
  EXPECT_EQ(value(Key::ramsize), "33554432");
  EXPECT_EQ(find<QComboBox>("ramSizeMB")->count(), 11);
}

TEST_F(Editing, AListedEntryIsChosen) {
  open("ramsize 67108864\nmodelid 3\n");
  showTab("Machine");
  find<QComboBox>("ramSizeMB")->showPopup();
  key(Qt::Key_Home);
  key(Qt::Key_Return);
  EXPECT_EQ(value(Key::ramsize), "1073741824");
  EXPECT_EQ(find<QComboBox>("ramSizeMB")->count(), 10);
  click("modelID");
  key(Qt::Key_Down);
  key(Qt::Key_Return);
  EXPECT_EQ(value(Key::modelid), "14");
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
    const QScrollBar* const bar =
        qobject_cast<QScrollArea*>(tabs()->currentWidget())->verticalScrollBar();
    for (QWidget* const widget : tabs()->currentWidget()->findChildren<QWidget*>()) {
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
  const std::string text = "\n" + fake.home.read(tests::FakeHost::prefs);
  for (std::size_t at = 0; at < odd.size(); at = odd.find('\n', at) + 1) {
    const std::string line = odd.substr(at, odd.find('\n', at) + 1 - at);
    EXPECT_NE(text.find("\n" + line), std::string::npos) << line;
  }
}

TEST_F(Editing, WhatAnAccessibilityToolSetsIsCommittedWhenTheFocusLeaves) {
  open("jitcachesize 8192\n");
  for (const auto& [tab, name, text, key] :
       {std::tuple("Machine", "romFile", "/a/rom", Key::rom),
        std::tuple("JIT", "jitCache", "777", Key::jitcachesize),
        std::tuple("Network", "modemPort", "/dev/x", Key::seriala)}) {
    showTab(tab);
    QWidget* const widget = find(name);
    widget->setFocus();
    auto* const box = qobject_cast<QComboBox*>(widget);
    QWidget* const field = box != nullptr ? box->lineEdit() : widget;
    QAccessible::queryAccessibleInterface(field)->setText(QAccessible::Value, QLatin1String(text));
    find("savePrefs")->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(value(key), text);
  }
}

TEST_F(Editing, EverythingHasANameAndALetterOfItsOwn) {
  open("disk /a\n");
  sharedVar::scsiTabState = true;
  fake.notifications.post("NotificationID");
  const auto check = [] {
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
      if (qobject_cast<QLineEdit*>(widget) == nullptr) {
        take(widget->property("text").toString());
      }
      for (const QAction* const menu :
           widget->inherits("QMenuBar") ? widget->actions() : QList<QAction*>()) {
        take(menu->text());
      }
      if ((widget->focusPolicy() & Qt::TabFocus) != 0 && widget->focusProxy() == nullptr) {
        const auto* const face = QAccessible::queryAccessibleInterface(widget);
        EXPECT_FALSE(face->text(QAccessible::Name).isEmpty())
            << widget->metaObject()->className() << " " << widget->objectName().toStdString();
      }
    }
    EXPECT_GT(letters.size(), 3U);
  };
  for (int tab = 0; tab < tabs()->count(); ++tab) {
    SCOPED_TRACE(tab);
    tabs()->setCurrentIndex(tab);
    check();
  }
  for (const char* const opening : {"openPreferences", "bitCreate"}) {
    SCOPED_TRACE(opening);
    showTab("Volumes");
    click(opening);
    QTest::qWait(0);
    check();
    QApplication::activeWindow()->close();
    activate(&*window);
  }
}

}  // namespace
