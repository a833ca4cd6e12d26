// The windows that the settings window opens.

#include <sys/resource.h>
#include <sys/stat.h>

#include <QAbstractButton>
#include <cmath>
#include <csignal>

#include "app/shared_var.h"
#include "desktop/status_line.h"
#include "tests/desktop/description.h"
#include "tests/desktop/window_fixture.h"
#include "tests/support/golden.h"

namespace {

using app::sharedVar;
using platform::TextColor;
namespace fs = std::filesystem;

class Windows : public tests::WindowTest {
 protected:
  static std::string frontWindow() {
    return tests::described(*QApplication::activeWindow(), [](const QWidget*) { return true; });
  }
  bool isOn(const char* name) const { return find<QAbstractButton>(name)->isChecked(); }
};

double luminance(const QColor& color) {
  const auto part = [](double value) { return std::pow(value, 2.2); };
  return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
}

TEST_F(Windows, StatusColoursAreReadableOnEveryBackground) {
  for (const int gray : {0, 32, 53, 64, 200, 225, 239, 255}) {
    const QColor background(gray, gray, gray);
    for (const TextColor color : {TextColor::gray, TextColor::red, TextColor::blue}) {
      const QColor readable = desktop::readableColor(color, background, background);
      const double ratio = (luminance(readable) + 0.05) / (luminance(background) + 0.05);
      EXPECT_TRUE(ratio >= 4.5 || ratio <= 1 / 4.5) << gray;
      const int redness = readable.red() - readable.blue();
      EXPECT_EQ(redness > 0, color == TextColor::red);
      EXPECT_EQ(redness < 0, color == TextColor::blue);
    }
  }
}

TEST_F(Windows, TheSmallOnesReadAsDescribed) {
  open();
  tests::Golden golden("windows/others.txt", fake.home.path());
  for (const char* const entry : {"&Preferences…", "&New Blank Image…", "&Diagnostics…"}) {
    menuEntry(entry)->trigger();
    QTest::qWait(0);
    golden.expect(entry, frontWindow());
    leaveBy("Escape");
  }
  press("Alt+H");
  press("B");
  golden.expect("&Beta Agreement…", frontWindow());
  const QPointer<QWidget> agreement = QApplication::activeWindow();
  press("Escape");
  EXPECT_FALSE(agreement->close()) << "as its frame does";
  EXPECT_TRUE(agreement->isVisible()) << "only its buttons end it";
  fake.said();
  leaveBy("Return");
  EXPECT_EQ(fake.said(), "Agree\n");
}

TEST_F(Windows, ImagesAreMadeOrRefusedWithAReason) {
  open();
  const fs::path home(fake.home.path());
  fs::create_directory(home / "folder.dsk");
  ASSERT_EQ(::mkfifo((home / "pipe.dsk").c_str(), 0600), 0);
  fake.home.write("old.dsk", std::string(3 << 20, 'x'));
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit limit{};
  ::getrlimit(RLIMIT_FSIZE, &limit);
  const rlimit less{100 << 20, limit.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &less);
  for (const tests::Case& each :
       tests::cases("images.txt", {"name", "size", "status", "makes MB"})) {
    SCOPED_TRACE(each.written);
    const bool made = each.has("makes MB");
    const std::string image = each["name"] + ".dsk";
    openBy("bitCreate");
    typeInto("createName", each["name"].c_str());
    typeInto("createSize", each["size"].c_str());
    press("Return");
    EXPECT_TRUE(text("createStatus").starts_with("Status: " + each["status"]))
        << text("createStatus");
    const QColor color = find("createStatus")->palette().color(QPalette::WindowText);
    EXPECT_EQ(color.blue() > color.red(), made) << "blue for done, red for refused";
    EXPECT_EQ(text("createImage"), made ? "Done" : "Create");
    EXPECT_EQ(fs::is_regular_file(home / image), made);
    if (made) {
      EXPECT_TRUE(fake.home.read(image) == std::string(std::stoul(each["makes MB"]) << 20U, '\0'));
    }
    leaveBy(made ? "Return" : "Escape");  // Return presses Done
  }
  ::setrlimit(RLIMIT_FSIZE, &limit);
}

TEST_F(Windows, ThePreferencesFollowEachChoice) {
  tests::Golden golden("windows/choices.txt", fake.home.path());
  const auto expectAfter = [&](const std::string& step) {
    golden.expect(step, fake.said() + "Quillon is at \"" + sharedVar::pathToQuil + "\", mode " +
                            std::to_string(sharedVar::startFlag) + ", Start is " +
                            (sharedVar::startState ? "enabled" : "disabled") + ".\n" +
                            frontWindow());
    const auto* const field = find<QLineEdit>("Quillon");
    const auto color = [field](QPalette::ColorRole role) {
      return field->palette().color(QPalette::Active, role);
    };
    EXPECT_EQ(color(QPalette::Base) == color(QPalette::Window), field->isReadOnly());
  };
  const std::pair<const char*, int> stored[] = {
      {"/o/Quillon.app", 7}, {"/o/Quillon.app", 1}, {"/o/Quillon.app", 2}, {"", 2}};
  for (const auto& [location, mode] : stored) {
    open();
    sharedVar::pathToQuil = location;
    sharedVar::startFlag = mode;
    sharedVar::startState = false;
    fake.said();
    openBy("openPreferences");
    expectAfter("Opened with \"" + sharedVar::pathToQuil + "\" and mode " + std::to_string(mode));
  }
  for (const char* const name : {"testLaunch", "quilLocal", "quilOff", "quilCustom"}) {
    click(name);
    expectAfter(std::string("Then a click on ") + name);
  }
  typeInto("Quillon", "/x/quillon.app");
  press("Return");
  expectAfter("Then /x/quillon.app is typed");
  typeInto("Quillon", "/x/Quillon");
  press("Tab");
  expectAfter("Then /x/Quillon is typed");
  for (const char* const path : {"/y/Quillon 2", "/y/other"}) {
    fake.panels.answers.push_back({platform::Location::fromPath(path)});
    click("chooseQuillon");
    expectAfter(std::string("Then ") + path + " is chosen");
  }
  typeInto("Quillon", "/bin/any");
  click("testLaunch");
  expectAfter("Then /bin/any is typed and tested");
  typeInto("Quillon", "/z/Quillon.app");
  click("Done");
  golden.expect("Then /z/Quillon.app is typed and Done pressed", fake.said());
  golden.expect("Stored", fake.home.read(fake.settings));
}

TEST_F(Windows, OnlyDoneAppliesAndStoresAndTheScsiTabKeepsWhatIsOnIt) {
  open();
  const std::string before = fake.home.read(fake.settings);
  const QWidget* const first = openBy("openPreferences");
  window->activateWindow();
  EXPECT_EQ(openBy("openPreferences"), first) << "there is one at a time";
  for (const char* const name : {"quilOff", "SCSItab", "quitOnStart"}) {
    click(name);
  }
  leaveBy("Escape");
  EXPECT_EQ(tabs()->count(), 6);
  EXPECT_TRUE(find("startQuil")->isEnabled());
  EXPECT_EQ(fake.home.read(fake.settings), before);
  openBy("openPreferences");
  EXPECT_TRUE(isOn("SCSItab") && isOn("quitOnStart") && isOn("quilOff"));
  leaveBy("Return");  // presses Done
  EXPECT_NE(fake.home.read(fake.settings), before);
  EXPECT_FALSE(find("startQuil")->isEnabled() || menuEntry("S&tart")->isEnabled());
  EXPECT_TRUE(find("startQuil")->toolTip().contains(QLatin1String("choose where Quillon is")));
  click("scsiID0");
  for (const int count : {6, 7}) {
    openBy("openPreferences");
    click("SCSItab");
    leaveBy("Return");
    EXPECT_EQ(tabs()->count(), count);
  }
  EXPECT_TRUE(isOn("scsiID0"));
  open();
  EXPECT_EQ(tabs()->tabText(1), QLatin1String("SCSI"));
  EXPECT_FALSE(find("startQuil")->isEnabled());
}

}  // namespace
