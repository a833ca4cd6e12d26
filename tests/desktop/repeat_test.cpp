#include "tests/desktop/window_fixture.h"

namespace {

class Repeat : public tests::WindowTest {
 protected:
  /// Holds a key until it has come a few times, as window systems tell of it.
  static void hold(Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    const QString text(code == Qt::Key_Space ? QLatin1String(" ") : QString());
    QTest::simulateEvent(front(), true, code, modifiers, text, false);
    for (int time = 0; time < 5; ++time) {
      QTest::simulateEvent(front(), false, code, modifiers, text, true);
      QTest::simulateEvent(front(), true, code, modifiers, text, true);
    }
    QTest::simulateEvent(front(), false, code, modifiers, text, false);
  }

  qsizetype starts() const {
    return QString::fromStdString(fake.output.text).count(QLatin1String("<launch"));
  }
};

TEST_F(Repeat, WhateverIsHeldOrPressedTwiceStartsOnce) {
  open();
  hold(Qt::Key_Return, Qt::ControlModifier);
  press("Ctrl+Return");
  EXPECT_EQ(starts(), 1);
  open();
  fake.said();
  enter("startQuil");
  hold(Qt::Key_Space);
  click("startQuil");
  EXPECT_EQ(starts(), 1);
  QTest::qWait(2001);
  click("startQuil");
  EXPECT_EQ(starts(), 2);
}

TEST_F(Repeat, AHeldKeySavesOnceRemovesOneImageAndMakesOne) {
  open("disk /a\ndisk /b\ndisk /c\n");
  fake.said();
  hold(Qt::Key_S, Qt::ControlModifier);
  const QString said = QString::fromStdString(fake.said());
  EXPECT_EQ(said.count(QLatin1String("post write prefs")), 1);
  enter("tableView");  // selects the first row
  hold(Qt::Key_Delete);
  EXPECT_EQ(controller->volumes.volumes().size(), 2U);
  click("bitCreate");
  typeInto("createName", "a");
  typeInto("createSize", "0");
  hold(Qt::Key_Return);
  EXPECT_TRUE(find("createStatus")->isVisible()) << "the sheet stays open";
}

}  // namespace
