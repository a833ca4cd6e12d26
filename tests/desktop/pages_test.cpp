// The pages: their parts, what explains them, what shows changes; and the windows beside them.

#include <QAccessible>
#include <QAction>
#include <QEnterEvent>
#include <QLabel>
#include <QPointer>

#include "tests/desktop/window_fixture.h"

namespace {

class Pages : public tests::WindowTest {
 protected:
  std::string shown(const char* label) const { return find<QLabel>(label)->text().toStdString(); }

  QString spokenName(const char* name, QAccessible::Role role) const {
    for (QWidget* widget = find(name); widget != nullptr; widget = widget->parentWidget()) {
      const auto* const face = QAccessible::queryAccessibleInterface(widget);
      if (face->role() == role) {
        return face->text(QAccessible::Name);
      }
    }
    return {};
  }
};

TEST_F(Pages, TheHelpKeepsASettingWhileItsListIsOpen) {
  open();
  window->completePages();
  showTab("Machine");
  auto* const box = find<QComboBox>("modelID");
  box->setFocus();
  EXPECT_EQ(shown("helpName"), "Model");
  EXPECT_EQ(shown("helpLine"),
            "The model that the Macintosh says it is. Mac OS 8 needs the Quadra.\n"
            "If unsure, leave it at \"Macintosh IIci\".");
  EXPECT_EQ(shown("helpFile"), "Writes \"modelid\", as a model number.");
  box->showPopup();
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(box, &leave);
  EXPECT_EQ(shown("helpName"), "Model");
  box->hidePopup();
}

TEST_F(Pages, ToolTipsAreOneSentence) {
  open();
  window->completePages();
  EXPECT_EQ(find("modelID")->toolTip(),
            QLatin1String("<p>The model that the Macintosh says it is.</p>"));
}

TEST_F(Pages, PartsAreGroupsAndNamesHaveNoMarks) {
  open("jit true\ndsp /dev/dsp\n");
  window->completePages();
  QTest::qWait(10);
  EXPECT_EQ(spokenName("ignoreSegV", QAccessible::Grouping), "Processor emulation");
  EXPECT_EQ(spokenName("enableJIT", QAccessible::CheckBox), "Enable the JIT compiler");
  EXPECT_TRUE(find("enableJIT")->property("text").toString().endsWith(QChar(0x2022)));
}

TEST_F(Pages, NothingMovesWhenASettingIsMarked) {
  open();
  window->completePages();
  for (const auto& [tab, name, value] :
       {std::tuple("Machine", "romFile", "/x"), std::tuple("Sound & Input", "audioMix", "/dev/x"),
        std::tuple("Network", "etherPort", "tap0")}) {
    showTab(tab);
    const QRect before = find(name)->geometry();
    typeInto(name, value);
    key(Qt::Key_Tab);
    QTest::qWait(10);
    EXPECT_EQ(window->isWindowModified(), true);
    EXPECT_EQ(find(name)->geometry(), before) << name;
  }
}

TEST_F(Pages, UnitsStayBehindTheirNumbersFromTheRight) {
  QApplication::setLayoutDirection(Qt::RightToLeft);
  open("frameskip 2\n");
  window->completePages();
  const QString mark(QChar(0x200e));
  EXPECT_EQ(find<QComboBox>("refreshRate")->currentText(), mark + QLatin1String("30 Hz") + mark);
  QApplication::setLayoutDirection(Qt::LeftToRight);
  key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_NE(file().find("frameskip 2\n"), std::string::npos);
}

TEST_F(Pages, WhatHelpsToFindFaultsIsInAWindowOfItsOwn) {
  open();
  EXPECT_THROW(find("loCalDebug"), std::logic_error);
  for (int time = 0; time < 2; ++time) {
    find<QAction>("openDiagnostics")->trigger();
    EXPECT_EQ(QApplication::topLevelWidgets().count(find("diagnosticsWindow")), 1);
    EXPECT_EQ(shown("loCalDebug"), "Debug: ");
    fake.said();
    click("ronMode");
    EXPECT_NE(fake.said().find("ronMode"), std::string::npos);
    click("sheetCreate");
    EXPECT_EQ(fake.panels.shown, "save sheet Create a new blank volume");
    find("loCalDebug")->window()->close();
    QTest::qWait(1);
    activate(&*window);
  }
}

TEST_F(Pages, ReturnInTheLocationTakesItInAndElsewhereIsDone) {
  open();
  click("openPreferences");
  QTest::qWait(1);
  const QPointer<QWidget> preferences = QApplication::activeWindow();
  click("quilCustom");
  const QColor writable = find("Quillon")->palette().color(QPalette::Base);
  typeInto("Quillon", "/x/Quillon.app");
  key(Qt::Key_Return);
  EXPECT_TRUE(preferences->isVisible());
  click("quilLocal");
  EXPECT_NE(find("Quillon")->palette().color(QPalette::Base), writable) << "cannot be typed into";
  find("quilLocal")->setFocus();
  key(Qt::Key_Return);
  EXPECT_FALSE(preferences != nullptr && preferences->isVisible());
}

}  // namespace
