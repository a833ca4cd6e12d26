#include <QFileDialog>

#include "desktop/panels.h"
#include "tests/desktop/window_fixture.h"

namespace {

/// What the window remembers from one run to the next.
class Memory : public tests::WindowTest {
 protected:
  static constexpr const char* file = ".config/quillon-settings/window.ini";

  bool isStored() const { return std::filesystem::exists(fake.home.path(file)); }

  /// Closes the window, opens it again, and waits until it is complete.
  void openAgain() {
    open();
    QTest::qWait(50);
  }
};

TEST_F(Memory, NothingIsStoredThatNobodyHasChanged) {
  openAgain();
  openAgain();
  EXPECT_FALSE(isStored());
}

TEST_F(Memory, SizeAndTabComeBackAndGarbageIsNoHarm) {
  openAgain();
  const QSize usual = window->size();
  const QSize chosen = usual - QSize(40, 30);
  window->resize(chosen);
  showTab("Machine");
  openAgain();
  EXPECT_EQ(window->size(), chosen);
  EXPECT_EQ(tabs()->tabText(tabs()->currentIndex()), QLatin1String("Machine"));
  window.reset();
  fake.home.write(file, "geometry=@ByteArray(\\x1\\xff)\ntab=7\n[\n\xff");
  openAgain();
  EXPECT_EQ(window->size(), usual);
  EXPECT_EQ(tabs()->currentIndex(), 0);
}

TEST_F(Memory, PanelsOpenWhereSomethingWasChosenLast) {
  struct Case {
    const char* last;
    const char* directory;  // of what is set
    const char* opens;
  };
  std::filesystem::create_directories(fake.home.path("last"));
  std::filesystem::create_directories(fake.home.path("set"));
  const Case cases[] = {
      {.last = "last", .directory = "", .opens = "last"},
      {.last = "last", .directory = "set", .opens = "set"},
  };
  open();
  for (const Case& checked : cases) {
    SCOPED_TRACE(checked.opens);
    QString folder = QString::fromStdString(fake.home.path(checked.last));
    desktop::Panels panels;
    panels.setWindow(&*window, &folder);
    platform::OpenPanel panel;
    panel.directory = *checked.directory == '\0' ? "" : fake.home.path(checked.directory);
    panel.allowedFileTypes = {"dsk"};
    fake.home.write("set/a.dsk", "");
    panels.beginSheet(panel, [](const auto&) {});
    auto* const dialog = window->findChild<QFileDialog*>();
    EXPECT_EQ(dialog->directory().path().toStdString(), fake.home.path(checked.opens));
    EXPECT_EQ(dialog->nameFilters().size(), 2) << "disk images first, all files second";
    dialog->selectFile(QString::fromStdString(fake.home.path("set/a.dsk")));
    static_cast<QDialog*>(dialog)->accept();
    EXPECT_EQ(folder.toStdString(), fake.home.path("set"));
    delete dialog;
  }
}

}  // namespace
