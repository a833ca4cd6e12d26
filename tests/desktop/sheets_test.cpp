#include <QAbstractButton>
#include <QFileDialog>
#include <QMessageBox>
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
  EXPECT_EQ(status(), "");
  key(Qt::Key_Tab);
  EXPECT_EQ(status(), "Status: You need to enter a name!");
}

TEST_F(Sheets, ANewImageIsAddedWhereThePersonWantsIt) {
  open();
  click("bitCreate");
  EXPECT_FALSE(find("addToList")->isVisible()) << "there is nothing to add yet";
  typeInto("createName", "fresh");
  find<QComboBox>("createSizes")->setFocus();
  key(Qt::Key_Down);  // to the first of the sizes
  EXPECT_EQ(find<QLineEdit>("createSize")->text(), QLatin1String("20"));
  click("createImage");
  EXPECT_TRUE(status().ends_with("- 20 MB Done!")) << status();
  const QPointer<QWidget> sheet = find("createSheet");
  click("addToList");
  EXPECT_TRUE(QTest::qWaitFor([&] { return sheet.isNull(); }));
  EXPECT_EQ(fake.panels.shown, "sheet Select a volume");
  EXPECT_TRUE(fake.panels.open.chosenFile.ends_with("/fresh.dsk"));
  EXPECT_EQ(controller->volumes.volumes().size(), 0) << "it is not added by itself";
}

TEST_F(Sheets, APanelHasAFileChosenFromTheBeginning) {
  open();
  desktop::Panels panels;
  panels.setWindow(&*window, &window->memory().folder);
  const std::string image = fake.home.write("fresh.dsk", "");
  platform::OpenPanel panel;
  panel.chosenFile = image;
  std::vector<platform::Location> chosen;
  panels.beginSheet(panel, [&](const auto& files) { chosen = files; });
  QTest::qWait(50);
  key(Qt::Key_Return);
  ASSERT_EQ(chosen.size(), 1);
  EXPECT_EQ(chosen.front().path(), image);
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
  const auto both = begin("rawKeyFileSelect");
  EXPECT_EQ(both.size(), 2);
  std::for_each(both.begin(), both.end(), [](QFileDialog* dialog) { dialog->reject(); });
  EXPECT_EQ(answers, 2);
  const auto again = begin("browseROM");
  EXPECT_TRUE(
      std::any_of(again.begin(), again.end(), [](auto* each) { return each->isVisible(); }));
}

TEST_F(Sheets, PanelsOfferWhatIsAskedForAndSpeakPlainly) {
  struct Case {
    bool canChooseFiles = true;
    bool canChooseDirectories = false;
    bool allowsMultipleSelection = false;
    QFileDialog::FileMode mode;
  };
  const Case cases[] = {
      {.mode = QFileDialog::ExistingFile},
      {.allowsMultipleSelection = true, .mode = QFileDialog::ExistingFiles},
      {.canChooseDirectories = true, .mode = QFileDialog::Directory},
      {.canChooseFiles = false, .canChooseDirectories = true, .mode = QFileDialog::Directory}};
  open();
  desktop::Panels panels;
  panels.setWindow(&*window, &window->memory().folder);
  for (const Case& each : cases) {
    platform::OpenPanel panel;
    panel.canChooseFiles = each.canChooseFiles;
    panel.canChooseDirectories = each.canChooseDirectories;
    panel.allowsMultipleSelection = each.allowsMultipleSelection;
    panels.beginSheet(panel, [](const auto&) {});
    auto* const dialog = window->findChild<QFileDialog*>();
    EXPECT_EQ(dialog->fileMode(), each.mode);
    EXPECT_NE(dialog->testOption(QFileDialog::ShowDirsOnly), each.canChooseFiles);
    auto* const message = new QMessageBox(dialog);
    message->setText(QLatin1String("<b>a file"));
    message->show();
    QTest::qWait(0);
    EXPECT_EQ(message->textFormat(), Qt::PlainText);
    delete dialog;
  }
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
