#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <QAbstractButton>
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
  void leave(int code = 0) {
    code != 0 ? key(code) : click("Done");
    QTest::qWait(0);
    activate(&*window);
  }
  std::string text(const char* name) const {
    return find(name)->property("text").toString().toStdString();
  }
  bool isOn(const char* name) const { return find<QAbstractButton>(name)->isChecked(); }

  /// Where Quillon is, the mode, whether Start works; then what the preferences window shows.
  std::string state() const {
    std::string all = sharedVar::pathToQuil + " " + std::to_string(sharedVar::startFlag);
    all += sharedVar::startState ? " start:" : " -:";
    for (const char* const mode : {"quilOff", "quilLocal", "quilCustom"}) {
      all += isOn(mode) ? std::string(" ") + mode : "";
    }
    auto* const field = find<QLineEdit>("Quillon");
    const bool editable = field->isEnabled() && !field->isReadOnly();
    return all + (text("Quillon") == sharedVar::pathToQuil ? " =" : " " + text("Quillon")) +
           (editable ? "_" : "");
  }
};

double luminance(const QColor& color) {
  const auto part = [](double value) { return std::pow(value, 2.2); };
  return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
}

TEST_F(Windows, StatusColoursAreReadableOnEveryBackground) {
  using platform::TextColor;
  for (const int gray : {0, 32, 53, 64, 200, 225, 239, 255}) {
    const QColor background(gray, gray, gray);
    for (const TextColor color : {TextColor::gray, TextColor::red, TextColor::blue}) {
      const QColor readable = desktop::readableColor(color, background, background);
      const double ratio = (luminance(readable) + 0.05) / (luminance(background) + 0.05);
      EXPECT_TRUE(ratio >= 4.5 || ratio <= 1 / 4.5) << gray;
    }
  }
}

TEST_F(Windows, ImagesAreMadeOrRefusedWithAReason) {
  open();
  const fs::path home(fake.home.path());
  fs::create_directory(home / "folder.dsk");
  ASSERT_EQ(::mkfifo((home / "fifo.dsk").c_str(), 0600), 0);
  fake.home.write("old.dsk", std::string(3 << 20, 'x'));
  const std::tuple<std::string, const char*, std::string, int> rows[] = {
      // the name and the size, as typed; the status or its beginning; the bytes
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
      {"full", "101", "Could not write 'full.dsk': File too large", -1}};
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit limit{};
  ::getrlimit(RLIMIT_FSIZE, &limit);
  const rlimit less{100 << 20, limit.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &less);
  for (const auto& [name, size, status, bytes] : rows) {
    SCOPED_TRACE(name + " " + size);
    openBy("bitCreate");
    typeInto("createName", name.c_str());
    typeInto("createSize", size);
    key(Qt::Key_Return);
    EXPECT_TRUE(text("createStatus").starts_with("Status: " + status)) << text("createStatus");
    const QColor color = find("createStatus")->palette().color(QPalette::WindowText);
    const bool made = bytes >= 0;
    EXPECT_TRUE(made ? color.blue() > color.red() : color.red() > color.blue());
    EXPECT_EQ(text("createImage"), made ? "Done" : "Create");
    EXPECT_EQ(fs::is_regular_file(home / (name + ".dsk")), made);
    EXPECT_TRUE(!made || fake.home.read(name + ".dsk") == std::string(std::size_t(bytes), '\0'));
    leave(made ? Qt::Key_Return : Qt::Key_Escape);  // Return presses Done
  }
  ::setrlimit(RLIMIT_FSIZE, &limit);
  EXPECT_EQ(controller->volumes.volumes().size(), 0U);
}

TEST_F(Windows, ThePreferencesFollowEachChoice) {
  open();
  const std::string local = fake.home.path() + "//Quillon.app";
  const std::string custom = " 1 start: quilCustom ";
  const auto answer = [&](const char* path) {
    fake.panels.answers.push_back({platform::Location::fromPath(path)});
  };
  const auto reopening = [this](std::string location, int flag) {
    return [=, this] {
      QApplication::activeWindow() == &*window ? void() : leave(Qt::Key_Escape);
      sharedVar::pathToQuil = location;
      sharedVar::startFlag = flag;
      sharedVar::startState = false;
      openBy("openPreferences");
    };
  };
  struct Row {
    std::function<void()> act;
    std::string state;
    std::string said;
  };
  const std::string start = "started prefs..\nstart flag: ";
  const std::vector<Row> rows = {
      {reopening("/o/Quillon.app", 7), "/o/Quillon.app 7 -: =_",
       start + "7\npath to quil is: /o/Quillon.app\n"},
      {reopening("/c/Quillon.app", 1), "/c/Quillon.app" + custom + "=_",
       start + "1\npath to quil is: /c/Quillon.app\nloaded as custom\n"},
      {reopening("/l/Quillon.app", 2), "/l/Quillon.app 2 start: quilLocal =",
       start + "2\npath to quil is: /l/Quillon.app\nloaded as local\n"},
      {reopening("", 2), " 0 -: quilOff =", start + "2\npath to quil is: \nloaded as empty\n"},
      {[&] { click("testLaunch"); }, " 0 -: quilOff =", ""},
      {[&] { click("quilLocal"); }, local + " 2 start: quilLocal =", "PathToQuil? " + local + "\n"},
      {[&] { click("quilOff"); }, " 0 -: quilOff =", "is empty\n"},
      {[&] { click("quilCustom"); }, custom + "=_", "is custom, flag is 1\n"},
      {[&] { type("/x/quillon.app"), key(Qt::Key_Return); }, custom + "=_", ""},
      {[&] { type("/Quillon"), key(Qt::Key_Tab); }, "/Quillon" + custom + "=_", ""},
      {[&] { answer("/y/Quillon 2"), click("chooseQuillon"); }, "/y/Quillon 2" + custom + "=_", ""},
      {[&] { answer("/y/other"), click("chooseQuillon"); }, "/y/Quillon 2" + custom + "_", ""},
      // As typed, not committed.
      {[&] { typeInto("Quillon", "/bin/any"), click("testLaunch"); }, "/bin/any" + custom + "=_",
       "<launch /bin/any>\n"}};
  for (std::size_t row = 0; row < rows.size(); ++row) {
    SCOPED_TRACE(row);
    fake.said();
    rows[row].act();
    EXPECT_EQ(state(), rows[row].state);
    EXPECT_EQ(fake.said(), rows[row].said);
  }
  typeInto("Quillon", "/z/Quillon.app");
  click("Done");
  EXPECT_TRUE(fake.said().starts_with(
      "done!\nstart? true\n/z/Quillon.app\nstartButton: true\nstartButton: /z/Quillon.app\n"
      "startButton: 1\n"));
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
  for (const char* const name : {"quilOff", "SCSItab", "quitOnStart"}) {
    click(name);
  }
  leave(Qt::Key_Escape);
  EXPECT_EQ(tabs()->count(), 6);
  EXPECT_TRUE(find("startQuil")->isEnabled());
  EXPECT_EQ(fake.home.read(fake.settings), before);
  openBy("openPreferences");
  EXPECT_TRUE(isOn("SCSItab") && isOn("quitOnStart") && isOn("quilOff"));
  leave();
  EXPECT_FALSE(find("startQuil")->isEnabled());
  EXPECT_NE(fake.home.read(fake.settings), before);
  showTab("SCSI");
  click("scsiID0");
  for (const int count : {6, 7}) {
    openBy("openPreferences");
    click("SCSItab");
    leave();
    EXPECT_EQ(tabs()->count(), count);
  }
  showTab("SCSI");
  EXPECT_TRUE(find("scsiID0")->isVisible() && isOn("scsiID0"));
  open();
  EXPECT_EQ(tabs()->tabText(1), QLatin1String("SCSI"));
  EXPECT_FALSE(find("startQuil")->isEnabled());
}

}  // namespace
