#include <QtTest/qtestspontaneevent.h>

#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>

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
  const auto press = [](int code, Qt::KeyboardModifiers modifiers = {}) {
    return [=] { key(code, modifiers); };
  };
  const auto clickSave = [this] { click("savePrefs"); };
  struct Way {
    const char* name;
    std::vector<std::function<void()>> steps;
  };
  const std::vector<Way> ways = {
      {"Return", {press(Qt::Key_Return), clickSave}},
      {"Tab", {press(Qt::Key_Tab), clickSave}},
      {"click elsewhere", {[&] { click("modelID"); }, press(Qt::Key_Escape), clickSave}},
      {"mouse", {clickSave}},
      {"Ctrl+S", {press(Qt::Key_S, control)}},
      {"Alt+S", {press(Qt::Key_S, alt)}},
      {"Ctrl+Return", {press(Qt::Key_Return, control)}},
      {"Alt+T", {press(Qt::Key_T, alt)}},
      {"menu", {press(Qt::Key_F, alt), press(Qt::Key_S)}}};
  const tests::Model wanted("ramsize 38797312\nrom /new rom\nscreen win/123/600\n");
  bool byTool = false;  // every other time an accessibility tool sets the first texts
  const auto write = [&](const char* name, const char* text) {
    auto* const box = qobject_cast<QComboBox*>(find(name));
    QWidget* const field = box != nullptr ? box->lineEdit() : find(name);
    if (byTool) {
      field->setFocus();
      QAccessible::queryAccessibleInterface(field)->setText(QAccessible::Value,
                                                            QLatin1String(text));
    } else {
      typeInto(name, text);
    }
  };
  for (const auto& [name, steps] : ways) {
    SCOPED_TRACE(name);
    byTool = !byTool;
    open("ramsize 67108864\nrom /old\nscreen win/800/600\n");
    showTab("Display");
    write("screenWidth", "123");
    showTab("Machine");
    write("romFile", "/new rom");
    typeInto("ramSizeMB", "37");
    const QWidget* const focus = QApplication::focusWidget();
    for (const auto& step : steps) {
      step();
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return file() == wanted.text(); })) << file();
    QTest::qWait(0);
    EXPECT_TRUE(QApplication::focusWidget() == focus ||
                QApplication::focusWidget() == find("savePrefs"));
  }
}

TEST_F(Editing, APastedTextIsOneLine) {
  open("rom /old\n");
  window->completePages();
  QApplication::clipboard()->setText(QLatin1String("/new\nramsize 1\r\n\n"));
  for (const char* const name : {"romFile", "etherPort"}) {
    showTabOf(find(name));
    typeInto(name, "");
    key(Qt::Key_V, control);
    key(Qt::Key_S, control);
  }
  EXPECT_EQ(file(),
            tests::Model("ramsize 67108864\nrom /new ramsize 1\nether /new ramsize 1\n").text());
}

TEST_F(Editing, OnlyAnAcceptedTextGetsIntoTheRamBox) {
  struct Row {
    const char* typed;
    std::vector<Qt::Key> keys;
    const char* shown;
    const char* why = "";
  };
  const std::vector<Row> rows = {
      {"1", {Qt::Key_Return}, "1", "although 1024 is offered"},
      {"1", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Escape, Qt::Key_Tab}, "1", "they were looked at"},
      {"1", {Qt::Key_Escape, Qt::Key_Return}, "1"},
      {"1", {Qt::Key_Down, Qt::Key_Tab}, "1"},
      {"1", {Qt::Key_Down, Qt::Key_Return}, "1024", "it was picked"},
      {"512", {Qt::Key_Tab}, "512"},
      {"0", {Qt::Key_Return}, "64"},
      {"64 MB", {Qt::Key_Return}, "64"},
      {"1.5", {Qt::Key_Tab}, "64"},
      {"", {Qt::Key_Return}, "64"},
      {"8796093022208", {Qt::Key_Return}, "64", "too many bytes to count"}};
  for (const auto& [typed, keys, shown, why] : rows) {
    SCOPED_TRACE(std::string(typed) + " " + why);
    open("ramsize 67108864\n");
    showTab("Machine");
    typeInto("ramSizeMB", typed);
    QTest::qWait(0);
    for (const Qt::Key each : keys) {
      key(each);
    }
    const auto* const box = find<QComboBox>("ramSizeMB");
    EXPECT_EQ(box->currentText(), QLatin1String(shown));
    EXPECT_EQ(box->count(), std::string(shown) == typed ? 11 : 10) << "what was typed is listed";
    EXPECT_EQ(value(Key::ramsize), std::to_string(std::stoll(shown) << 20));
  }
}

TEST_F(Editing, LookingAtAnotherWindowEndsNoEdit) {
  QWidget other;
  open("ramsize 67108864\n");
  showTab("Machine");
  typeInto("ramSizeMB", "32");
  other.show();
  activate(&other);
  EXPECT_EQ(value(Key::ramsize), "67108864");
  activate(&*window);
  key(Qt::Key_Return);
  EXPECT_EQ(value(Key::ramsize), "33554432");
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
        for (const int turn : {120, -120}) {
          const int before = bar->value();
          wheel(widget, turn);
          scrolled = scrolled || (bar->value() != before && qobject_cast<QComboBox*>(widget));
        }
      }
    }
    for (const int turn : {120, -120}) {
      wheel(tabs()->tabBar(), turn);
      EXPECT_EQ(tabs()->currentIndex(), tab);
    }
  }
  EXPECT_TRUE(scrolled);
  key(Qt::Key_S, control);
  EXPECT_EQ(file(), tests::Model(odd).text());
}

}  // namespace
