#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <QAbstractButton>
#include <algorithm>
#include <cmath>
#include <csignal>

#include "app/shared_var.h"
#include "desktop/status_line.h"
#include "tests/desktop/window_fixture.h"

namespace {

using app::sharedVar;
namespace fs = std::filesystem;

/// The windows that the settings window opens.
class Windows : public tests::WindowTest {
 protected:
  void openBy(const char* button) {
    click(button);
    QTest::qWait(0);
    ASSERT_NE(QApplication::activeWindow(), &*window);
  }
  void leave(int code) {
    key(code);
    QTest::qWait(0);
    activate(&*window);
  }
  void done() {
    click("Done");
    QTest::qWait(0);
    activate(&*window);
  }
  std::string text(const char* name) const { return textOf(find(name)).toStdString(); }
  bool isOn(const char* name) const { return find<QAbstractButton>(name)->isChecked(); }
};

double luminance(const QColor& color) {
  const auto part = [](double value) {
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
}

TEST_F(Windows, StatusColoursAreReadableOnEveryBackground) {
  using platform::TextColor;
  for (const int gray : {0, 32, 53, 64, 200, 225, 239, 255}) {
    const QColor background(gray, gray, gray);
    for (const TextColor color : {TextColor::gray, TextColor::red, TextColor::blue}) {
      const double one = luminance(desktop::readableColor(color, background, background)) + 0.05;
      const double other = luminance(background) + 0.05;
      EXPECT_GE(std::max(one, other) / std::min(one, other), 4.5) << gray;
    }
  }
}

TEST_F(Windows, ImagesAreMadeOrRefusedWithAReason) {
  open();
  const fs::path home(fake.home.path());
  fs::create_directory(home / "folder.dsk");
  ASSERT_EQ(::mkfifo((home / "fifo.dsk").c_str(), 0600), 0);
  fs::create_symlink("/dev/full", home / "device.dsk");
  fake.home.write("old.dsk", std::string(3 << 20, 'x'));
  struct Row {
    const char* name;
    const char* size;
    const char* status;  // behind "Status: "; of a failure the beginning
    std::int64_t bytes;  // -1: refused
    rlim_t room = RLIM_INFINITY;
  };
  const std::vector<Row> rows = {
      {"", "1", "You need to enter a name!", -1},
      {"test", "20", "'test.dsk' - 20 MB Done!", 20 << 20},
      {"zero", "0", "'zero.dsk' - 0 MB Done!", 0},
      {"usual", "abc", "'usual.dsk' - 100 MB Done!", 100 << 20},
      {"old", "+1", "'old.dsk' - 1 MB Done!", 1 << 20},
      {"minus", "-1", "The size must be", -1},
      {"large", "8796093022208", "The size must be", -1},
      {"larger", "99999999999999999999", "The size must be", -1},
      {"none/x", "1", "Could not write 'none/x.dsk': No such file", -1},
      {"folder", "1", "Could not write 'folder.dsk': Is a directory", -1},
      {"fifo", "1", "Could not write 'fifo.dsk': ", -1},
      {"device", "1", "Could not write 'device.dsk': ", -1},
      {"full", "3", "Could not write 'full.dsk': ", -1, 1 << 20}};
  std::signal(SIGXFSZ, SIG_IGN);
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.name) + " " + row.size);
    openBy("bitCreate");
    EXPECT_EQ(text("createImage"), "Create");
    typeInto("createName", row.name);
    typeInto("createSize", row.size);
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit less{row.room, limit.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &less);
    key(Qt::Key_Return);
    ::setrlimit(RLIMIT_FSIZE, &limit);
    const std::string start = std::string("Status: ") + row.status;
    EXPECT_EQ(text("createStatus").substr(0, start.size()), start);
    const QColor color = find("createStatus")->palette().color(QPalette::WindowText);
    const fs::path image = home / (std::string(row.name) + ".dsk");
    if (row.bytes < 0) {
      EXPECT_GT(color.red(), color.blue());
      EXPECT_EQ(text("createImage"), "Create");
      EXPECT_FALSE(fs::is_regular_file(image));
      leave(Qt::Key_Escape);
      continue;
    }
    EXPECT_GT(color.blue(), color.red());
    EXPECT_EQ(text("createImage"), "Done");
    const std::string content = fake.home.read(image.filename());
    EXPECT_EQ(content.size(), static_cast<std::size_t>(row.bytes));
    EXPECT_EQ(content.find_first_not_of('\0'), std::string::npos);
    leave(Qt::Key_Return);  // presses Done
  }
  EXPECT_EQ(controller->volumes.volumes().size(), 0U);
}

TEST_F(Windows, ThePreferencesOpenByTheLocationAndTheMode) {
  struct Row {
    const char* location;
    std::int64_t flag;
    const char* on;
    const char* said;
    bool state;
    bool editable;
  };
  const std::vector<Row> rows = {
      {"", 2, "quilOff", "loaded as empty\n", false, false},
      {"/l/Quillon.app", 2, "quilLocal", "loaded as local\n", true, false},
      {"/c/Quillon.app", 1, "quilCustom", "loaded as custom\n", true, true},
      {"/o/Quillon.app", 7, "", "", false, true}};
  open();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.said);
    sharedVar::pathToQuil = row.location;
    sharedVar::startFlag = row.flag;
    sharedVar::startState = false;
    fake.said();
    openBy("openPreferences");
    EXPECT_EQ(fake.said(), "started prefs..\nstart flag: " + std::to_string(row.flag) +
                               "\npath to quil is: " + row.location + "\n" + row.said);
    for (const char* const mode : {"quilOff", "quilLocal", "quilCustom"}) {
      EXPECT_EQ(isOn(mode), std::string(mode) == row.on) << mode;
    }
    EXPECT_EQ(text("Quillon"), row.location);
    auto* const field = find<QLineEdit>("Quillon");
    EXPECT_EQ(field->isEnabled() && !field->isReadOnly(), row.editable);
    EXPECT_EQ(sharedVar::startState, row.state);
    leave(Qt::Key_Escape);
  }
}

TEST_F(Windows, ThePreferencesFollowEachChoice) {
  open();
  const std::string local = fake.home.path() + "//Quillon.app";
  const auto expect = [](const char* path, std::int64_t flag, bool state) {
    EXPECT_EQ(sharedVar::pathToQuil, path);
    EXPECT_EQ(sharedVar::startFlag, flag);
    EXPECT_EQ(sharedVar::startState, state);
  };
  openBy("openPreferences");
  fake.said();
  click("quilOff");
  EXPECT_EQ(fake.said(), "is empty\n");
  expect("", 0, false);
  EXPECT_FALSE(find("Quillon")->isEnabled());
  click("testLaunch");
  expect("", 0, false);
  click("quilLocal");
  EXPECT_EQ(fake.said(), "PathToQuil? " + local + "\n");
  expect(local.c_str(), 2, true);
  EXPECT_EQ(text("Quillon"), local);
  click("quilCustom");
  EXPECT_EQ(fake.said(), "is custom, flag is 1\n");
  expect(local.c_str(), 1, true);
  EXPECT_EQ(text("Quillon"), "");
  EXPECT_EQ(QApplication::focusWidget(), find("Quillon"));
  type("/x/quillon.app");
  key(Qt::Key_Return);
  EXPECT_EQ(text("Quillon"), "");
  expect(local.c_str(), 1, true);
  type("/x/Quillon.app");
  key(Qt::Key_Tab);
  expect("/x/Quillon.app", 1, true);
  fake.panels.answers = {{platform::Location::fromPath("/y/Quillon 2.app")},
                         {platform::Location::fromPath("/y/other.app")}};
  click("chooseQuillon");
  expect("/y/Quillon 2.app", 1, true);
  click("chooseQuillon");
  EXPECT_EQ(text("Quillon"), "");
  expect("/y/Quillon 2.app", 1, true);
  typeInto("Quillon", "/bin/anything");
  click("testLaunch");  // as typed, not committed
  EXPECT_EQ(text("Quillon"), "/bin/anything");
  expect("/bin/anything", 1, true);
  EXPECT_EQ(fake.workspace.launched, std::vector<std::string>{"/bin/anything"});
  typeInto("Quillon", "/z/Quillon.app");
  fake.said();
  click("Done");
  const std::string said = fake.said();
  const std::string done =
      "done!\nstart? true\n/z/Quillon.app\nstartButton: true\nstartButton: /z/Quillon.app\n"
      "startButton: 1\n";
  EXPECT_EQ(said.substr(0, done.size()), done);
  EXPECT_NE(fake.home.read(fake.settings).find("/z/Quillon.app"), std::string::npos);
}

TEST_F(Windows, OnlyDoneAppliesAndStoresAndTheScsiTabKeepsWhatIsOnIt) {
  open();
  const std::string before = fake.home.read(fake.settings);
  openBy("openPreferences");
  QWidget* const first = QApplication::activeWindow();
  window->activateWindow();
  openBy("openPreferences");
  EXPECT_EQ(QApplication::activeWindow(), first);
  click("quilOff");
  click("SCSItab");
  click("quitOnStart");
  leave(Qt::Key_Escape);
  EXPECT_TRUE(sharedVar::scsiTabState && sharedVar::quitGUI);
  EXPECT_EQ(tabs()->count(), 6);
  EXPECT_TRUE(find("startQuil")->isEnabled());
  EXPECT_EQ(fake.home.read(fake.settings), before);
  openBy("openPreferences");
  EXPECT_TRUE(isOn("SCSItab") && isOn("quitOnStart") && isOn("quilOff"));
  done();
  EXPECT_FALSE(find("startQuil")->isEnabled());
  EXPECT_NE(fake.home.read(fake.settings), before);
  ASSERT_EQ(tabs()->tabText(1), QLatin1String("SCSI"));
  tabs()->setCurrentIndex(1);
  click("scsiID0");
  for (const int count : {6, 7}) {
    openBy("openPreferences");
    click("SCSItab");
    done();
    EXPECT_EQ(tabs()->count(), count);
  }
  showTab("SCSI");
  EXPECT_TRUE(find("scsiID0")->isVisible() && isOn("scsiID0"));
}

}  // namespace
