// What a save would change, and what one has done.

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include "tests/desktop/window_fixture.h"

namespace {

class Unsaved : public tests::WindowTest {
 protected:
  bool isVisible(const char* name) const { return find(name)->isVisible(); }
  QStringList previewed(const char* pane) const {
    return find<QPlainTextEdit>(pane)->toPlainText().split(QLatin1Char('\n'));
  }
};

TEST_F(Unsaved, IsCountedListedPutBackAndSaved) {
  open("cpu 3\n");
  EXPECT_FALSE(isVisible("changesButton"));
  typeInto("romFile", "/my/<b>rom");
  click("stateCDROM");
  expectText("changesButton", "2 unsaved changes");
  EXPECT_TRUE(find("romFile")->accessibleDescription().startsWith("Changed. Not the default. "));

  click("changesButton");
  QWidget* const list = find("changesList");
  QStringList texts;
  for (const QLabel* const label : list->findChildren<QLabel*>()) {
    texts.append(label->text());
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
  }
  const std::string romDefault = "Put the path to your ROM file here";
  EXPECT_TRUE(texts.contains(QString::fromStdString(romDefault + " → /my/<b>rom")));
  EXPECT_TRUE(texts.contains(QString::fromUtf8("off → on")));
  list->findChild<QPushButton*>(QLatin1String("putBack"))->click();
  expectText("changesButton", "1 unsaved change");
  EXPECT_EQ(text("romFile"), romDefault);

  click("savePrefs");
  EXPECT_TRUE(QTest::qWaitFor([this] { return !isVisible("changesButton"); }));
  EXPECT_TRUE(text("savedLine").starts_with("Saved ")) << text("savedLine");
  activate(&*window);
  typeInto("romFile", "/half typed");
  menuEntry("&Reset This Page")->trigger();
  EXPECT_EQ(text("romFile"), romDefault);
  expectText("changesButton", "1 unsaved change");
  EXPECT_TRUE(QTest::qWaitFor([this] { return !isVisible("savedLine"); }));
}

TEST_F(Unsaved, TellsWhetherQuillonWasStarted) {
  open();
  for (const bool starts : {true, false}) {
    fake.workspace.starts = starts;
    find<QLineEdit>("romFile")->setText(starts ? "/rom" : "/other");  // as screen readers do
    controller->saveAndLaunch();
    EXPECT_EQ(value(document::Key::rom), starts ? "/rom" : "/other");
    const char* const told = starts ? "Quillon was started " : "Quillon was not started";
    EXPECT_TRUE(QTest::qWaitFor([&] { return text("savedLine").starts_with(told); }));
  }
}

TEST_F(Unsaved, APreviewShowsWhatASaveWouldDoAndWritesNothing) {
  const std::string before = "# mine\n\ncpu 2\ncpu 3\nfpu false\nfpu false\nrom /old";
  open(before);
  typeInto("romFile", "/typed/<b>just now");
  menuEntry("Pre&view…")->trigger();
  EXPECT_EQ(previewed("previewNow"), QStringList({"- # mine", "  ", "  cpu 2", "- cpu 3",
                                                  "  fpu false", "- fpu false", "* rom /old"}));
  for (const char* const line : {"* rom /typed/<b>just now", "  cpu 2", "+ udpport 6066"}) {
    EXPECT_TRUE(previewed("previewAfter").contains(line)) << line;
  }
  EXPECT_EQ(file(), before);
}

}  // namespace
