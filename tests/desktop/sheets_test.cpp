#include <QAbstractButton>
#include <QFileDialog>
#include <QTranslator>

#include "desktop/panels.h"
#include "tests/desktop/window_fixture.h"

namespace {

class Sheets : public tests::WindowTest {
 protected:
  std::string status() const { return find<QLabel>("createStatus")->text().toStdString(); }
};

TEST_F(Sheets, TheAgreementIsLeftByItsButtonsOnly) {
  open();
  key(Qt::Key_H, Qt::AltModifier);
  key(Qt::Key_B);
  const QPointer<QWidget> sheet = find("agreementText")->window();
  QTest::keyClick(sheet->windowHandle(), Qt::Key_Escape);
  EXPECT_FALSE(sheet->close());  // as its frame does
  EXPECT_TRUE(sheet->isVisible());
  fake.said();
  window->close();
  EXPECT_EQ(fake.said(), "windowWillClose\n<terminate>\n");
  click("Agree");
  EXPECT_FALSE(sheet != nullptr && sheet->isVisible());
}

TEST_F(Sheets, LeavingTheNameEmptyIsTold) {
  open();
  click("bitCreate");
  QTest::qWait(0);
  const QPalette before = find("createStatus")->palette();
  EXPECT_EQ(status(), "");
  key(Qt::Key_Tab);
  EXPECT_EQ(status(), "Status: You need to enter a name!");
  EXPECT_EQ(find("createStatus")->palette(), before);
}

TEST_F(Sheets, PressingBrowseAgainRaisesTheSameChooser) {
  open();
  desktop::Panels panels;
  panels.setWindow(&*window, &window->memory().folder);
  int answers = 0;
  const auto begin = [&](const char* asker) {
    platform::OpenPanel panel;
    panel.asker = asker;
    panels.begin(panel, [&](const auto&) { ++answers; });
    return window->findChildren<QFileDialog*>();
  };
  EXPECT_EQ(begin("browseROM").size(), 1);
  EXPECT_EQ(begin("browseROM").size(), 1);
  EXPECT_EQ(begin("rawKeyFileSelect").size(), 2);
  for (QFileDialog* const dialog : window->findChildren<QFileDialog*>()) {
    dialog->reject();
  }
  EXPECT_EQ(answers, 2);
  const auto again = begin("browseROM");
  EXPECT_TRUE(
      std::any_of(again.begin(), again.end(), [](auto* each) { return each->isVisible(); }));
}

/// Shows where a text was translated.
class Brackets : public QTranslator {
 public:
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char* context, const char* text, const char* /*note*/,
                                  int /*count*/) const override {
    return std::string(context) == "Items"
               ? QLatin1Char('[') + QLatin1String(text) + QLatin1Char(']')
               : QString();
  }
};

TEST_F(Sheets, TextsOfTheCoreAreTranslatedWhereTheyAreShown) {
  Brackets translator;
  QCoreApplication::installTranslator(&translator);
  open("frameskip Dynamic\n");
  window->completePages();
  EXPECT_EQ(find<QComboBox>("refreshRate")->currentText(),
            QLatin1String("Dynamic[ (from the file)]"));
  EXPECT_EQ(find<QComboBox>("refreshRate")->itemText(0), QLatin1String("[Dynamic]"));
  click("bitCreate");
  typeInto("createName", "a");
  typeInto("createSize", "0");
  EXPECT_EQ(find<QAbstractButton>("createImage")->text(), QLatin1String("[Create]"));
  click("createImage");
  EXPECT_EQ(find<QAbstractButton>("createImage")->text(), QLatin1String("[Done]"));
}

}  // namespace
