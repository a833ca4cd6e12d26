#include <QFileDialog>
#include <QMessageBox>

#include "desktop/panels.h"
#include "tests/desktop/window_fixture.h"

namespace {

/// Panels of the toolkit itself, as they are where the desktop has none.
class Sheets : public tests::WindowTest {
 protected:
  Sheets() {
    open();
    panels.setWindow(&*window, &folder);
  }

  QFileDialog* show(const platform::OpenPanel& panel) {
    panels.beginSheet(panel, [this](const auto& files) { chosen = files; });
    return window->findChildren<QFileDialog*>().constLast();
  }

  QString folder;  // in which something was chosen last
  desktop::Panels panels;
  std::vector<platform::Location> chosen;
};

TEST_F(Sheets, ANewImageHasANameAndASizeAndIsNotAdded) {
  openBy("bitCreate");
  EXPECT_EQ(text("createStatus"), "");
  press("Tab");
  EXPECT_EQ(text("createStatus"), "Status: You need to enter a name!");
  EXPECT_FALSE(find("addToList")->isVisible()) << "there is nothing to add yet";
  typeInto("createName", "fresh");
  enter("createSizes");
  press("Down");  // to the first of the sizes
  press("Return");
  EXPECT_TRUE(text("createStatus").ends_with("- 20 MB Done!")) << text("createStatus");
  leaveBy("Escape");
  EXPECT_EQ(controller->volumes.volumes().size(), 0);
}

TEST_F(Sheets, PanelsOfferWhatIsAskedForAndSpeakPlainly) {
  struct Case {
    bool canChooseFiles = true;
    bool canChooseDirectories = false;
    bool allowsMultipleSelection = false;
    QFileDialog::FileMode mode;
  };
  for (const Case& each :
       {Case{.mode = QFileDialog::ExistingFile},
        Case{.allowsMultipleSelection = true, .mode = QFileDialog::ExistingFiles},
        Case{.canChooseDirectories = true, .mode = QFileDialog::Directory},
        Case{.canChooseFiles = false,
        .canChooseDirectories = true,
        .mode = QFileDialog::Directory}}) {
    platform::OpenPanel panel;
    panel.canChooseFiles = each.canChooseFiles;
    panel.canChooseDirectories = each.canChooseDirectories;
    panel.allowsMultipleSelection = each.allowsMultipleSelection;
    auto* const dialog = show(panel);
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

TEST_F(Sheets, PanelsOpenWhereSomethingIsSetOrWasChosenLast) {
  const std::string image = fake.home.write("set/a.dsk", "");
  fake.home.write("several/b.dsk", "");
  fake.home.write("several/c.dsk", "");
  std::filesystem::create_directory(fake.home.path("last"));
  folder = QString::fromStdString(fake.home.path("last"));
  platform::OpenPanel panel;
  panel.allowedFileTypes = {"dsk"};
  EXPECT_EQ(show(panel)->directory().path(), folder);
  panel.directory = fake.home.path("set");
  EXPECT_EQ(show(panel)->directory().path().toStdString(), panel.directory);
  panel.chosenFile = image;
  EXPECT_EQ(show(panel)->nameFilters().size(), 2) << "disk images first, all files second";
  QTest::qWait(50);
  press("Return");
  ASSERT_EQ(chosen.size(), 1);
  EXPECT_EQ(chosen.front().path(), image);
  EXPECT_EQ(folder.toStdString(), fake.home.path("set"));
  platform::OpenPanel several;
  several.allowsMultipleSelection = true;
  several.directory = fake.home.path("several");
  show(several);
  QTest::qWait(50);
  type(R"("b.dsk" "c.dsk")");
  press("Return");
  EXPECT_EQ(chosen.size(), 2);
  EXPECT_EQ(folder.toStdString(), several.directory);
}

TEST_F(Sheets, PressingBrowseAgainRaisesTheSameChooser) {
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
  for (QFileDialog* const dialog : both) {
    dialog->reject();
  }
  EXPECT_EQ(answers, 2);
  EXPECT_TRUE(begin("browseROM").constLast()->isVisible()) << "one that is closed is no hindrance";
}

}  // namespace
