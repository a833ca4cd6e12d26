#include <QAction>
#include <QLabel>
#include <QPushButton>

#include "tests/desktop/window_fixture.h"

namespace {

class Unsaved : public tests::WindowTest {
 protected:
  QString text(const char* name) const { return find(name)->property("text").toString(); }
  bool isVisible(const char* name) const { return find(name)->isVisible(); }
};

TEST_F(Unsaved, IsCountedListedPutBackAndSaved) {
  open("cpu 3\n");
  showTab("Machine");
  EXPECT_FALSE(isVisible("changesButton"));
  typeInto("romFile", "/my/<b>rom");
  key(Qt::Key_Return);
  click("stateCDROM");
  QTRY_COMPARE(text("changesButton"), QLatin1String("2 unsaved changes"));
  EXPECT_TRUE(find("romFile")->accessibleDescription().startsWith("Changed. Not the default. "));

  click("changesButton");
  auto* const list = find<QDialog>("changesList");
  QStringList texts;
  for (const QLabel* const label : list->findChildren<QLabel*>()) {
    texts.append(label->text());
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
  }
  const QString romDefault = QLatin1String("Put the path to your ROM file here");
  EXPECT_TRUE(texts.contains(romDefault + QString::fromUtf8(" → /my/<b>rom")));
  EXPECT_TRUE(texts.contains(QString::fromUtf8("off → on")));
  list->findChild<QPushButton*>(QLatin1String("putBack"))->click();
  QTRY_COMPARE(text("changesButton"), QLatin1String("1 unsaved change"));
  EXPECT_EQ(text("romFile"), romDefault);

  click("savePrefs");
  QTRY_VERIFY(!isVisible("changesButton"));
  EXPECT_TRUE(text("savedLine").startsWith(QLatin1String("Saved ")))
      << text("savedLine").toStdString();
  find<QAction>("resetPage")->trigger();
  QTRY_COMPARE(text("changesButton"), QLatin1String("1 unsaved change"));
  QTRY_VERIFY(!isVisible("savedLine"));
}

TEST_F(Unsaved, TellsWhetherQuillonWasStarted) {
  open();
  for (const bool starts : {true, false}) {
    fake.workspace.starts = starts;
    controller->saveAndLaunch();
    const char* const told = starts ? "Quillon was started " : "Quillon was not started";
    QTRY_VERIFY(text("savedLine").startsWith(QLatin1String(told)));
  }
}

}  // namespace
