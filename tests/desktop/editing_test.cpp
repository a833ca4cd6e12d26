#include <QtTest/qtestspontaneevent.h>

#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>

#include "tests/desktop/window_fixture.h"
#include "tests/support/data.h"
#include "tests/support/model.h"

namespace {

using document::Key;

class Editing : public tests::WindowTest {
 protected:
  // Window systems send it to the innermost widget below the pointer.
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
  const tests::Model wanted("ramsize 38797312\nrom /new rom\nscreen win/123/600\n");
  const std::vector<const char*> ways[] = {
      {"Return", "Ctrl+S"}, {"Tab", "Ctrl+S"}, {"Ctrl+S"},     {"Alt+S"},
      {"Ctrl+Return"},      {"Alt+T"},         {"Alt+F", "S"},
  };
  for (const auto& keys : ways) {
    SCOPED_TRACE(keys.front());
    open("ramsize 67108864\nrom /old\nscreen win/800/600\n");
    typeInto("screenWidth", "123");
    auto* const face = QAccessible::queryAccessibleInterface(enter("romFile"));
    face->setText(QAccessible::Value, QLatin1String("/new rom"));  // as a screen reader does
    typeInto("ramSizeMB", "37");
    std::for_each(keys.begin(), keys.end(), press);
    EXPECT_TRUE(QTest::qWaitFor([&] { return file() == wanted.text(); })) << file();
  }
}

TEST_F(Editing, APastedTextIsOneLine) {
  open("rom /old\n");
  QApplication::clipboard()->setText(QLatin1String("/new\nramsize 1\r\n\n"));
  for (const char* const name : {"romFile", "etherPort"}) {
    typeInto(name, "");
    press("Ctrl+V");
    press("Ctrl+S");
  }
  EXPECT_EQ(file(),
            tests::Model("ramsize 67108864\nrom /new ramsize 1\nether /new ramsize 1\n").text());
}

TEST_F(Editing, OnlyAnAcceptedTextGetsIntoTheRamBox) {
  for (const tests::Case& each : tests::cases("ram-sizes.txt", {"typed", "key", "shown"})) {
    SCOPED_TRACE(each.written);
    open("ramsize 67108864\n");
    typeInto("ramSizeMB", each["typed"].c_str());
    QTest::qWait(0);
    const std::vector<std::string> keys = each.all("key");
    std::for_each(keys.begin(), keys.end(), press);
    const auto* const box = find<QComboBox>("ramSizeMB");
    EXPECT_EQ(box->currentText().toStdString(), each["shown"]);
    EXPECT_EQ(box->count(), each["shown"] == each["typed"] ? 11 : 10) << "what was typed is listed";
    EXPECT_EQ(value(Key::ramsize), std::to_string(std::stoll(each["shown"]) << 20));
  }
}

TEST_F(Editing, LookingAtAnotherWindowEndsNoEdit) {
  QWidget other;
  open("ramsize 67108864\n");
  typeInto("ramSizeMB", "32");
  other.show();
  activate(&other);
  EXPECT_EQ(value(Key::ramsize), "67108864");
  activate(&*window);
  press("Return");
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
    const QScrollBar* const bar = page->findChild<QScrollArea*>()->verticalScrollBar();
    for (QWidget* const widget : page->findChildren<QWidget*>()) {
      if (widget->isVisible() && widget->isEnabled() && widget->focusPolicy() != Qt::NoFocus) {
        widget->setFocus();
        if (qobject_cast<QAbstractButton*>(widget) == nullptr) {
          press("Return");
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
  press("Ctrl+S");
  EXPECT_EQ(file(), tests::Model(odd).text());
}

}  // namespace
