#include <QElapsedTimer>
#include <QListWidget>
#include <atomic>
#include <future>

#include "tests/desktop/window_fixture.h"
#include "tests/support/data.h"

namespace {

/// What the window tells before starting, over a home in which nothing stops a start.
class Checks : public tests::WindowTest {
 protected:
  Checks() {
    const auto program = fake.home.write("Quillon.app/Contents/MacOS/Quillon", "");
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    fake.home.write("mac.rom", std::string(1 << 20, 'r'));
    fake.home.write("a.dsk", "image");
  }

  /// Waits until the line tells this to a screen reader.
  void expectTold(const std::string& wanted) const {
    const auto line = [this] { return find("checksLine")->accessibleName().toStdString(); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return line().find(wanted) != std::string::npos; }))
        << line() << " does not tell " << wanted;
  }

  /// Goes to the first finding, as a person does from the keyboard.
  void goToFirst() {
    click("checksLine");
    activate(find("checksList")->window());
    press("Return");
  }
};

TEST_F(Checks, EachFindingLeadsToItsControl) {
  for (const tests::Case& each :
       tests::cases("findings-shown.txt", {"line", "tells", "tab", "control", "row"})) {
    SCOPED_TRACE(each.written);
    std::string preferences;
    for (const std::string& line : each.all("line")) {
      preferences += line + "\n";
    }
    open(preferences);
    expectTold(each["tells"]);
    QWidget* const widget = find(each["control"].c_str());
    const QString finding =
        QString::fromStdString(each["tells"]).section(QLatin1String(" And "), 0, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return widget->accessibleDescription().contains(finding); }));
    goToFirst();
    EXPECT_TRUE(QTest::qWaitFor([&] { return widget->hasFocus(); }));
    EXPECT_TRUE(find("pointedOut")->isVisible());
    const int row = find<QAbstractItemView>("tableView")->currentIndex().row();
    EXPECT_EQ(row >= 0 ? std::to_string(row + 1) : "", each["row"]);
    EXPECT_EQ(tabs()->tabBar()->accessibleTabName(tabs()->currentIndex()).toStdString(),
              each["tab"] + ", with something to look at");
  }
}

TEST_F(Checks, FollowEditsSavesAndFiles) {
  open("rom \xff\ndisk a.dsk\n");
  expectTold("file could not be read");
  press("Ctrl+S");
  expectTold("Problem: No ROM file is chosen. And 1 more.");
  typeInto("romFile", "b.rom");
  press("Return");
  expectTold("Problem: The ROM file \"b.rom\" is missing.");
  fake.home.write("b.rom", std::string(1 << 20, 'r'));
  QWidget other;
  other.show();
  activate(&other);
  activate(&*window);
  expectTold("Warning: There is no disk image");
  EXPECT_TRUE(QTest::qWaitFor([&] {
    return !find("romFile")->accessibleDescription().contains(QLatin1String("missing"));
  }));
}

TEST_F(Checks, WhereQuillonIsIsAskedInThePreferences) {
  std::filesystem::remove_all(fake.home.path("Quillon.app"));
  open("rom mac.rom\ndisk a.dsk\n");
  expectTold("Problem: Quillon is not at");
  goToFirst();
  EXPECT_TRUE(QTest::qWaitFor([&] { return find("Quillon")->hasFocus(); }));
}

TEST_F(Checks, AFactThatTakesTenSecondsStopsNothing) {
  constexpr std::chrono::seconds slow(10);
  const auto calls = std::make_shared<std::atomic<int>>(0);
  const auto end = std::make_shared<std::promise<void>>();
  const auto facts = [calls, slow, ended = end->get_future().share()](const checks::State& state) {
    if (calls->fetch_add(1) == 0) {
      ended.wait_for(slow);
    }
    return checks::gather(state);
  };
  QElapsedTimer clock;
  clock.start();
  open("disk a.dsk\n", facts);
  expectTold("Problem: No ROM file is chosen.");  // which takes no file to know
  calls->store(0);
  open("disk a.dsk\n", facts);  // the first window ends before its facts are there
  typeInto("romFile", "mac.rom");
  press("Return");
  expectTold("Ready to start.");  // facts for another state overtake it
  press("Ctrl+S");
  EXPECT_NE(file().find("\nrom mac.rom\n"), std::string::npos);
  click("startQuil");
  EXPECT_NE(fake.said().find("<launch "), std::string::npos);
  EXPECT_LT(clock.elapsed(), std::chrono::milliseconds(slow).count() / 2);
  end->set_value();
  QTest::qWait(100);
  expectTold("Ready to start.");  // an outdated result counts for nothing
}

}  // namespace
