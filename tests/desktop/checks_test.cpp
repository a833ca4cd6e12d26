#include <QElapsedTimer>
#include <QListWidget>
#include <atomic>
#include <future>

#include "tests/desktop/window_fixture.h"

namespace {

constexpr auto control = Qt::ControlModifier;

/// What the window tells before starting, over a home in which nothing stops a start.
class Checks : public tests::WindowTest {
 protected:
  Checks() {
    const auto program = fake.home.write("Quillon.app/Contents/MacOS/Quillon", "");
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    fake.home.write("mac.rom", std::string(1 << 20, 'r'));
    fake.home.write("a.dsk", "image");
  }

  /// Opens the window once more, with facts from elsewhere.
  void openWith(const std::string& preferences, const desktop::FactsSource& facts) {
    open(preferences);
    window.emplace(*controller, fake.host(application), application.edits, facts);
    window->show();
    activate(&*window);
  }

  /// The line, as a screen reader tells it.
  std::string line() const { return find("checksLine")->accessibleName().toStdString(); }

  bool tells(const std::string& text) const {
    return QTest::qWaitFor([&] { return line() == text; });
  }

  /// Goes to the first finding, as a person does from the keyboard.
  void goToFirst() {
    click("checksLine");
    activate(find("checksList")->window());
    key(Qt::Key_Return);
  }
};

TEST_F(Checks, EachFindingLeadsToItsControl) {
  struct Case {
    std::string preferences;
    std::string line;
    QString tab;  // with a mark
    const char* control;
    int row = -1;  // of the list, which is selected
  };
  const Case cases[] = {
      {.preferences = "disk a.dsk\n",
       .line = "Problem: No ROM file is chosen.",
       .tab = "Machine",
       .control = "romFile"},
      {.preferences = "rom mac.rom\ncpu 9\n",
       .line = "Warning: There is no disk image in the list. And 1 more.",
       .tab = "Volumes",
       .control = "tableView"},
      {.preferences = "rom mac.rom\ndisk a.dsk\ndisk gone.dsk\n",
       .line = "Warning: The disk image \"gone.dsk\" is missing.",
       .tab = "Volumes",
       .control = "tableView",
       .row = 1},
      {.preferences = "rom mac.rom\ndisk a.dsk\nmousewheelmode 7\n",
       .line =
           "Note: \"mousewheelmode 7\" in the file is nothing that this program knows. It shows "
           "\"Page up / page down\", and a save writes \"mousewheelmode 0\".",
       .tab = "Sound & Input",
       .control = "mouseWheel"},
  };
  for (const Case& checked : cases) {
    SCOPED_TRACE(checked.preferences);
    open(checked.preferences);
    ASSERT_TRUE(tells(checked.line)) << line();
    QWidget* const widget = find(checked.control);
    const std::string finding = checked.line.substr(0, checked.line.find(" And "));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return widget->accessibleDescription().contains(QString::fromStdString(finding)); }));
    goToFirst();
    EXPECT_TRUE(QTest::qWaitFor([&] { return widget->hasFocus(); }));
    EXPECT_TRUE(find("checksFrame")->isVisible());
    EXPECT_EQ(find<QAbstractItemView>("tableView")->currentIndex().row(), checked.row);
    EXPECT_EQ(tabs()->tabBar()->accessibleTabName(tabs()->currentIndex()),
              checked.tab + QLatin1String(", with something to look at"));
  }
}

TEST_F(Checks, FollowEditsSavesAndFiles) {
  open("rom mac.rom\ndisk a.dsk\n");
  EXPECT_TRUE(tells("Ready to start.")) << line();
  EXPECT_EQ(tabs()->tabBar()->accessibleTabName(0), QString());
  showTab("Machine");
  typeInto("romFile", "b.rom");
  key(Qt::Key_Return);
  EXPECT_TRUE(tells("Problem: The ROM file \"b.rom\" is missing.")) << line();
  fake.home.write("b.rom", std::string(1 << 20, 'r'));
  QWidget other;
  other.show();
  activate(&other);
  activate(&*window);
  EXPECT_TRUE(tells("Ready to start.")) << line();
  EXPECT_TRUE(QTest::qWaitFor([&] {
    return !find("romFile")->accessibleDescription().contains(QLatin1String("missing"));
  }));
}

TEST_F(Checks, WhereQuillonIsIsAskedInThePreferences) {
  std::filesystem::remove_all(fake.home.path("Quillon.app"));
  open("rom mac.rom\ndisk a.dsk\n");
  EXPECT_TRUE(QTest::qWaitFor([&] { return line().starts_with("Problem: Quillon is not at"); }));
  goToFirst();
  EXPECT_TRUE(QTest::qWaitFor([&] { return find("Quillon")->hasFocus(); }));
}

TEST_F(Checks, AFileThatCannotBeReadIsToldUntilItIsReplaced) {
  open("rom \xff\n");
  const auto isTold = [&] { return line().find("file could not be read") != std::string::npos; };
  EXPECT_TRUE(QTest::qWaitFor(isTold)) << line();
  key(Qt::Key_S, control);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !isTold(); })) << line();
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
  openWith("disk a.dsk\n", facts);
  EXPECT_TRUE(tells("Problem: No ROM file is chosen.")) << "which takes no file to know";
  showTab("Machine");
  typeInto("romFile", "mac.rom");
  key(Qt::Key_Return);
  EXPECT_TRUE(tells("Ready to start.")) << "facts for another state overtake it";
  key(Qt::Key_S, control);
  EXPECT_NE(file().find("\nrom mac.rom\n"), std::string::npos);
  click("startQuil");
  EXPECT_NE(fake.said().find("<launch "), std::string::npos);
  window.reset();
  EXPECT_LT(clock.elapsed(), std::chrono::milliseconds(slow).count() / 2);

  calls->store(0);
  openWith("disk a.dsk\n", facts);
  showTab("Machine");
  typeInto("romFile", "mac.rom");
  key(Qt::Key_Return);
  EXPECT_TRUE(tells("Ready to start.")) << line();
  end->set_value();
  QTest::qWait(100);
  EXPECT_EQ(line(), "Ready to start.") << "an outdated result counts for nothing";
}

}  // namespace
